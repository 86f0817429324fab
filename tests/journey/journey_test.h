#pragma once

#include <string>
#include <vector>

#include "tests/journey/certificate_steps.h"
#include "tests/journey/stored_differences.h"
#include "tests/windows/rule_editor_test.h"

namespace corvane::test {

inline constexpr wchar_t kExchangeIn[] = L"C:\\Exchange\\In";
inline constexpr wchar_t kExchangeOut[] = L"C:\\Exchange\\Out";
inline constexpr wchar_t kExchangeSent[] = L"C:\\Exchange\\Sent";
inline constexpr wchar_t kExchangeError[] = L"C:\\Exchange\\Error";

inline constexpr wchar_t kHelenMarsh[] = L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB";
inline constexpr wchar_t kOliverTrent[] = L"CN=Oliver Trent,OU=Settlement,O=Northgate Clearing,C=GB";
inline constexpr wchar_t kAstridLindholm[] = L"CN=Astrid Lindholm,O=Lindholm Freight,C=SE";
inline constexpr wchar_t kErikSandberg[] = L"CN=Erik Sandberg,O=Lindholm Freight,C=SE";
inline constexpr wchar_t kDanielOkafor[] =
    L"CN=Daniel Okafor,EMAIL=daniel.okafor@ferrow.example,OU=Claims,O=Ferrow Insurance,C=US";
inline constexpr wchar_t kMajaNyberg[] = L"CN=Maja Nyberg,O=Lindholm Freight,C=SE";

/// Folders on drive C, made with what lies above them. Those that it has made go with this object, unless
/// something has been put into them.
class FoldersOfTest {
  public:
    explicit FoldersOfTest(const driver::Texts& paths);
    ~FoldersOfTest();
    FoldersOfTest(const FoldersOfTest&) = delete;
    FoldersOfTest& operator=(const FoldersOfTest&) = delete;
    FoldersOfTest(FoldersOfTest&&) = delete;
    FoldersOfTest& operator=(FoldersOfTest&&) = delete;

  private:
    driver::Texts made_;
};

/// A test that goes all the way of a user: the real program with the stand-in library and its certificates
/// beside it, from the first click to what is stored.
class JourneyTest : public RuleEditorTest {
  protected:
    JourneyTest() : folders_({kExchangeIn, kExchangeOut, kExchangeSent, kExchangeError}) {}

    /// Types the three folders, the output folder only where it can be typed.
    static void TypeFolders(const driver::Window& ruleEditor);
    /// Presses a button that opens the folder or file picker, and picks.
    void Pick(const driver::Window& ruleEditor, int buttonId, const std::wstring& path) const;

    /// Presses "Save", leaves, and gives all that the maker's key holds but the place of the window, which
    /// must be stored, and the catalogue.
    [[nodiscard]] StoredTree SaveAndReadAll();
    /// Starts again, opens each rule of the profile with "Edit rule", confirms it as it is, and gives what
    /// is stored after another "Save".
    [[nodiscard]] StoredTree ConfirmEachRuleUnchanged(const std::wstring& profile);

  private:
    FoldersOfTest folders_;
};

}  // namespace corvane::test
