#pragma once

// Measures that the dialog templates share, in dialog units.

#define DIALOG_MARGIN 7
#define BUTTON_WIDTH 50
#define BUTTON_HEIGHT 14
#define EDIT_HEIGHT 14
#define TEXT_HEIGHT 8
// From one related control to the next one in the same row.
#define BUTTON_GAP 6
// A text in the row of an edit stands this much lower than the edit.
#define TEXT_DROP 3
// A button with an icon, beside a field with its label above it.
#define FIELD_ICON_BUTTON_WIDTH 26
#define FIELD_ICON_BUTTON_HEIGHT 24

// The main window's own: its buttons are larger.
#define ICON_BUTTON_SIZE 32
#define TALL_BUTTON_HEIGHT 19

// The system's dialog font.
#define DIALOG_FONT FONT 8, "MS Shell Dlg", 400, 0, 1

// The id of texts and pictures that nobody addresses; not every compiler's headers have it.
#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif
