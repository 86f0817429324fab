#include "standin/revocations.h"

#include <gmock/gmock.h>

#include <array>

#include "tests/standin/session_fixture.h"

namespace corvane::standin {
namespace {

using ::testing::ElementsAre;

RevocationFile LoadedFile(std::vector<Bytes> revoked) {
    return {"good.crl", "", {1, 2, 3}, std::move(revoked)};
}

RevocationFile RefusedFile() {
    return {"bad.crl", "not a certificate revocation list", {}, {}};
}

TEST(Control, ARevokedCertificateIsServedNoMoreInThisContextAndLaterOnes) {
    FakeSystem system;
    system.local = {CertificateOf(L"Peter Vale", L"Ferrow", {5, 0xFF, 0}),
                    CertificateOf(L"Ruth Vale", L"Ferrow", {6})};
    system.revocationFiles = {LoadedFile({{5, 0xFF, 0}})};
    Session session(system);
    EXPECT_EQ(session.Search(0, nullptr), kStatusOk);
    EXPECT_EQ(session.owners.size(), 2U);
    std::array<char, 1024> text = {};
    provider::XsigBlob buffer = {text.size(), text.data()};
    EXPECT_EQ(session.provider.Control(session.context, 4, &buffer), kStatusOk);
    EXPECT_STREQ(text.data(), "good.crl: loaded, 1 revoked\r\n");
    EXPECT_EQ(buffer.length, text.size()) << "the capacity is the caller's";
    EXPECT_EQ(session.Search(0, nullptr), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre("CN=Ruth Vale,O=Ferrow,C=GB"));
    ASSERT_EQ(session.provider.Uninitialize(session.context), kStatusOk);
    ASSERT_EQ(session.provider.Initialize("Clearing", 0, &session.context), kStatusOk);
    EXPECT_EQ(session.Search(0, "CN=Peter*"), provider::kStatusNothingFound);
}

TEST(Control, ARefusedListFailsButTheOthersAreLoaded) {
    FakeSystem system;
    system.local = {CertificateOf(L"Peter Vale", L"Ferrow", {5})};
    system.revocationFiles = {LoadedFile({{5}}), RefusedFile()};
    Session session(system);
    std::array<char, 1024> text = {};
    provider::XsigBlob buffer = {text.size(), text.data()};
    EXPECT_EQ(session.provider.Control(session.context, 4, &buffer), kStatusRevocationListRefused);
    EXPECT_STREQ(text.data(),
                 "bad.crl: not a certificate revocation list\r\ngood.crl: loaded, 1 revoked\r\n");
    EXPECT_THAT(PopErrors(session.provider, session.context),
                ElementsAre("not a certificate revocation list|bad.crl"));
    EXPECT_EQ(session.Search(0, nullptr), provider::kStatusNothingFound);
}

TEST(Control, NoListAtAllIsASilentDistributionPoint) {
    FakeSystem system;
    Session session(system);
    for (const bool hasFolder : {false, true}) {
        system.revocationFiles.reset();
        if (hasFolder) {
            system.revocationFiles.emplace();
        }
        std::array<char, 1024> text = {};
        provider::XsigBlob buffer = {text.size(), text.data()};
        EXPECT_EQ(session.provider.Control(session.context, 4, &buffer), kStatusDistributionPointSilent);
        EXPECT_STREQ(text.data(), "No certificate revocation list in C:\\certificates\\crl\r\n");
    }
}

TEST(Control, AnotherCodeIsRefused) {
    const FakeSystem system;
    Session session(system);
    EXPECT_EQ(session.provider.Control(session.context, 5, nullptr), kStatusUnknownControlCode);
    EXPECT_THAT(PopErrors(session.provider, session.context), ElementsAre("The control code is not known|5"));
}

TEST(Control, ANullBufferIsRefused) {
    const FakeSystem system;
    Session session(system);
    EXPECT_EQ(session.provider.Control(session.context, 4, nullptr), 0xFFFFFFFDU);
}

TEST(Revocations, ANewListReplacesTheOldOneOfItsIssuer) {
    Revocations revocations;
    revocations.Take(LoadedFile({{5}}));
    revocations.Take({"other.crl", "", {9}, {{7}}});
    revocations.Take(LoadedFile({{6}}));
    EXPECT_FALSE(revocations.Contains({1, 2, 3}, {5}));
    EXPECT_TRUE(revocations.Contains({1, 2, 3}, {6}));
    EXPECT_TRUE(revocations.Contains({9}, {7}));
    EXPECT_FALSE(revocations.Contains({9}, {6}));
}

std::string WholeLines(const std::string& text, std::size_t capacity) {
    std::string buffer(capacity + 1, 'x');
    WriteWholeLines(text, buffer.data(), capacity);
    EXPECT_EQ(buffer[capacity], 'x') << "written beyond the capacity";
    return buffer.substr(0, buffer.find('\0'));
}

TEST(WriteWholeLines, WholeLinesAreWrittenAsFarAsTheyFit) {
    EXPECT_EQ(WholeLines("ab\r\ncd\r\n", 9), "ab\r\ncd\r\n");
    EXPECT_EQ(WholeLines("ab\r\ncd\r\n", 8), "ab\r\n");
    EXPECT_EQ(WholeLines("ab\r\ncd\r\n", 5), "ab\r\n");
    EXPECT_EQ(WholeLines("ab\r\ncd\r\n", 4), "");
    EXPECT_EQ(WholeLines("ab\r\ncd\r\n", 1), "");
    EXPECT_EQ(WholeLines("", 1), "");
}

TEST(WriteWholeLines, ABufferOfNothingIsLeftAlone) {
    char untouched = 'x';
    WriteWholeLines("ab\r\n", &untouched, 0);
    EXPECT_EQ(untouched, 'x');
    WriteWholeLines("ab\r\n", nullptr, 10);
}

}  // namespace
}  // namespace corvane::standin
