#include "app/rule_format_texts.h"

namespace corvane {

namespace {

const wchar_t* SignatureFormatText(std::int32_t isDetached) {
    return isDetached != 0 ? L"Detached signature" : L"Attached signature";
}

}  // namespace

std::wstring SignatureFormatsText(const Rule& rule) {
    std::wstring text = SignatureFormatText(rule.inputDetached);
    text += L"->";
    text += SignatureFormatText(rule.outputDetached);
    return text;
}

std::wstring ArchiveFormatText(const Rule& rule) {
    constexpr std::int32_t kZip = 1;
    constexpr std::int32_t kGzip = 2;
    switch (rule.archiveFormat) {
        case kZip:
            return L"ZIP archivation";
        case kGzip:
            return L"GZIP archivation";
        default:
            return {};
    }
}

}  // namespace corvane
