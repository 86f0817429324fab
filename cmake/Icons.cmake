# Makes the icons of the program from the drawings in res/icons.
#
# NAME.svg is drawn on a grid of 32, so its lines land on whole pixels at the multiples of 16. A size
# between them takes the drawing made for it (NAME.24.svg), else the one made for its half (NAME.20.svg
# for 40), and so does 16, where the detail of the large drawing would run together.

set(CORVANE_ICON_NAMES
  save log_path
  add_rule copy_rule edit_rule delete_rule make_first move_up move_down make_last
  add_profile edit_profile delete_profile export_rules import_rules
  add_item edit_item delete_item
  input_folder output_folder error_folder certificates second_output_folder executable
  warning_box error_mode info_mode refusal
  add_to_chosen remove_from_chosen
  main_window)

# What the system asks for at 96 to 192 dpi, as small icon (16 to 32), as large icon (32 to 64) and as
# picture of a button. Sizes up to 48 are plain bitmaps, which everything that reads icons understands;
# larger ones are PNG, a twentieth of the bytes.
set(CORVANE_BITMAP_SIZES 16 20 24 32 40 48)
set(CORVANE_PNG_SIZES 64)

function(corvane_find_icon_tools)
  find_program(RSVG_CONVERT rsvg-convert)
  find_program(ICOTOOL icotool)
  set(missing "")
  if(NOT RSVG_CONVERT)
    string(APPEND missing "\n  rsvg-convert (Debian: librsvg2-bin, MSYS2: mingw-w64-x86_64-librsvg)")
  endif()
  if(NOT ICOTOOL)
    string(APPEND missing "\n  icotool (Debian: icoutils, MSYS2: mingw-w64-x86_64-icoutils)")
  endif()
  if(missing)
    message(FATAL_ERROR "The icons are made from their drawings by two programs. Please install:${missing}")
  endif()
endfunction()

# Sets OUTPUT_VARIABLE to the drawing of NAME that is sharp at SIZE pixels.
function(corvane_icon_drawing OUTPUT_VARIABLE NAME SIZE)
  set(folder ${CMAKE_SOURCE_DIR}/res/icons)
  math(EXPR half "${SIZE} / 2")
  math(EXPR beyondGrid "${SIZE} % 16")
  set(drawing ${folder}/${NAME}.svg)
  if(EXISTS ${folder}/${NAME}.${SIZE}.svg)
    set(drawing ${folder}/${NAME}.${SIZE}.svg)
  elseif(beyondGrid AND EXISTS ${folder}/${NAME}.${half}.svg)
    set(drawing ${folder}/${NAME}.${half}.svg)
  endif()
  set(${OUTPUT_VARIABLE} ${drawing} PARENT_SCOPE)
endfunction()

# Adds the command that makes the icon file FILE (a name without extension) of the drawings of NAME and
# sets OUTPUT_VARIABLE to its path.
function(corvane_icon_file OUTPUT_VARIABLE FILE NAME)
  cmake_parse_arguments(ICON "" "" "BITMAPS;PNGS" ${ARGN})
  set(folder ${CMAKE_BINARY_DIR}/res/icons)
  set(render "")
  set(bitmaps "")
  set(pngs "")
  set(drawings "")
  foreach(size IN LISTS ICON_BITMAPS ICON_PNGS)
    corvane_icon_drawing(drawing ${NAME} ${size})
    list(APPEND drawings ${drawing})
    set(png ${folder}/png/${FILE}.${size}.png)
    list(APPEND render COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${drawing})
    if(size IN_LIST ICON_BITMAPS)
      list(APPEND bitmaps ${png})
    else()
      list(APPEND pngs --raw=${png})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES drawings)
  set(ico ${folder}/${FILE}.ico)
  add_custom_command(OUTPUT ${ico}
    ${render}
    COMMAND ${ICOTOOL} --create --icon --bit-depth=32 -o ${ico} ${bitmaps} ${pngs}
    DEPENDS ${drawings}
    COMMENT "Icon ${FILE}"
    VERBATIM)
  set(${OUTPUT_VARIABLE} ${ico} PARENT_SCOPE)
endfunction()

# corvane_icons(OUTPUT_VARIABLE)
# Adds the commands that make <build>/res/icons/NAME.ico and sets OUTPUT_VARIABLE to the files. The
# object of a resource script that holds them has to depend on them (OBJECT_DEPENDS), because the
# resource compiler does not tell the build which icons it read.
function(corvane_icons OUTPUT_VARIABLE)
  corvane_find_icon_tools()
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/res/icons/png)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/res/icons)
  set(icons "")
  foreach(name IN LISTS CORVANE_ICON_NAMES)
    set(pngSizes ${CORVANE_PNG_SIZES})
    if(name STREQUAL "main_window")
      list(APPEND pngSizes 96 256)
    endif()
    corvane_icon_file(ico ${name} ${name} BITMAPS ${CORVANE_BITMAP_SIZES} PNGS ${pngSizes})
    list(APPEND icons ${ico})
  endforeach()
  # The picture of the executable in file managers; see icons.rc. PNG throughout, so that the second
  # copy of the main icon weighs little.
  corvane_icon_file(ico program_file main_window PNGS ${CORVANE_BITMAP_SIZES} ${CORVANE_PNG_SIZES} 96 256)
  list(APPEND icons ${ico})
  set(${OUTPUT_VARIABLE} ${icons} PARENT_SCOPE)
endfunction()
