#include <windows.h>

#include "app/corvane_app.h"
#include "toolkit/system/libraries.h"

namespace {

corvane::app::CCorvaneApp application;

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    corvane::toolkit::LeaveCurrentFolderOutOfLibrarySearch();
    return application.Run();
}
