#include <windows.h>

#include "app/corvane_app.h"

namespace {

corvane::CCorvaneApp application;

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    return application.Run();
}
