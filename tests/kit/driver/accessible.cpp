#include "tests/kit/driver/accessible.h"

#include <objbase.h>
#include <oleauto.h>

#include <oleacc.h>

#include <memory>

#include "tests/kit/driver/failure.h"

namespace corvane::test {
namespace {

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

struct ComLibrary {
    ComLibrary() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~ComLibrary() { CoUninitialize(); }
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;
    ComLibrary(ComLibrary&&) = delete;
    ComLibrary& operator=(ComLibrary&&) = delete;
};

VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
}

}  // namespace

AccessibleView AccessibleOf(const Window& control) {
    const ComLibrary library;
    void* pointer = nullptr;
    const HRESULT result = AccessibleObjectFromWindow(control.Handle(), static_cast<DWORD>(OBJID_CLIENT),
                                                      __uuidof(IAccessible), &pointer);
    if (result != S_OK) {
        throw Failure(L"The platform was expected to describe " + control.Name() +
                      L" to screen readers, and does not (code " + std::to_wstring(result) + L").");
    }
    const std::unique_ptr<IAccessible, Releaser> accessible(static_cast<IAccessible*>(pointer));
    AccessibleView view;
    BSTR name = nullptr;
    if (accessible->get_accName(Self(), &name) == S_OK) {
        view.name.assign(name, SysStringLen(name));
        SysFreeString(name);
    }
    VARIANT number{};
    if (accessible->get_accRole(Self(), &number) == S_OK && number.vt == VT_I4) {
        view.role = number.lVal;
    }
    if (accessible->get_accState(Self(), &number) == S_OK && number.vt == VT_I4) {
        view.state = number.lVal;
    }
    return view;
}

}  // namespace corvane::test
