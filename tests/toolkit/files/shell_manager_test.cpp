#include "toolkit/files/path_pickers.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <thread>

#include "toolkit/system/libraries.h"

namespace corvane::test {
namespace {

const toolkit::LateLibrary& Com() {
    static const toolkit::LateLibrary kLibrary(L"ole32.dll");
    return kLibrary;
}

HRESULT OpenApartment(DWORD kind) {
    return Com().Find<decltype(&::CoInitializeEx)>("CoInitializeEx")(nullptr, kind);
}

void CloseApartment() {
    Com().Find<decltype(&::CoUninitialize)>("CoUninitialize")();
}

// Each in a thread of its own, because an apartment belongs to one.
template <typename Steps>
void InThread(Steps steps) {
    std::thread(steps).join();
}

HWND WindowThatIsGone() {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(window);
    return window;
}

TEST(ShellManager, OpensTheApartmentAtItsStartAndClosesItInTheEnd) {
    InThread([] {
        {
            const toolkit::ShellManager shell;
            EXPECT_EQ(OpenApartment(COINIT_MULTITHREADED), RPC_E_CHANGED_MODE) << "nobody else can open one";
        }
        EXPECT_EQ(OpenApartment(COINIT_MULTITHREADED), S_OK) << "it is closed";
        CloseApartment();
    });
}

TEST(ShellManager, LeavesAnApartmentOfAnotherKindAlone) {
    InThread([] {
        ASSERT_EQ(OpenApartment(COINIT_MULTITHREADED), S_OK);
        static_cast<void>(toolkit::ShellManager());
        EXPECT_EQ(OpenApartment(COINIT_MULTITHREADED), S_FALSE) << "it is still open";
        CloseApartment();
        CloseApartment();
    });
}

TEST(ShellManager, APickerThatCannotBeShownIsAFailure) {
    InThread([] {
        toolkit::ShellManager shell;
        const toolkit::PathChoice choice = shell.PickFolder(WindowThatIsGone());
        EXPECT_EQ(choice.path, std::nullopt);
        ASSERT_TRUE(choice.failure);
        EXPECT_NE(choice.failure->code, 0U);
        EXPECT_STREQ(choice.failure->operationFormat, toolkit::kShowFolderPickerOperation);
    });
}

// The interfaces of COM have no destructor of their own, because nobody deletes by them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// The class of the dialog as this test has it: it makes none, and says why.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): as said above.
class NoFileOpenDialogs final : public IClassFactory {
  public:
    explicit NoFileOpenDialogs(HRESULT reason) : reason_(reason) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*wanted*/, void** object) override {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID /*wanted*/, void** object) override {
        *object = nullptr;
        return reason_;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*isLocked*/) override { return S_OK; }

  private:
    HRESULT reason_;
};
#pragma GCC diagnostic pop

constexpr GUID kFileOpenDialogClass = {
    0xDC1C5A9C, 0xE88A, 0x4DDE, {0xA5, 0xA1, 0x60, 0xF8, 0x2A, 0x20, 0xAE, 0xF7}};

toolkit::DialogFailure FailureWithoutDialogs(HRESULT reason) {
    toolkit::ShellManager shell;
    NoFileOpenDialogs factory(reason);
    DWORD registration = 0;
    Com().Find<decltype(&::CoRegisterClassObject)>("CoRegisterClassObject")(
        kFileOpenDialogClass, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registration);
    const toolkit::PathChoice choice = shell.PickFolder(nullptr);
    Com().Find<decltype(&::CoRevokeClassObject)>("CoRevokeClassObject")(registration);
    return choice.failure.value_or(toolkit::DialogFailure{"no failure", "", 0});
}

TEST(ShellManager, AShellWithoutThePickerIsAFailureWithItsCode) {
    InThread([] {
        EXPECT_EQ(
            FailureWithoutDialogs(E_NOTIMPL),
            (toolkit::DialogFailure{toolkit::kShowFolderPickerOperation, "CoCreateInstance", 0x80004001}));
    });
}

TEST(ShellManager, ACodeOfTheSystemIsToldAsItIs) {
    InThread([] {
        EXPECT_EQ(FailureWithoutDialogs(HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND)),
                  (toolkit::DialogFailure{toolkit::kShowFolderPickerOperation, "CoCreateInstance",
                                          ERROR_MOD_NOT_FOUND}));
    });
}

}  // namespace
}  // namespace corvane::test
