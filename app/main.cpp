#include <windows.h>

#include "app/corvane_app.h"
#include "toolkit/library_search.h"

namespace {

corvane::CCorvaneApp application;

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    toolkit::LeaveCurrentFolderOutOfLibrarySearch();
    return application.Run();
}
