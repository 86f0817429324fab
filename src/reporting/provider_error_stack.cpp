#include "reporting/provider_error_stack.h"

#include <algorithm>
#include <string_view>

namespace corvane::reporting {

namespace {

// A text on loan from the provider library.
class ProviderText {
  public:
    ProviderText(const provider::ProviderFunctions& provider, provider::ProviderContext releaseContext)
        : provider_(provider), releaseContext_(releaseContext) {}
    ProviderText(const ProviderText&) = delete;
    ProviderText& operator=(const ProviderText&) = delete;
    ProviderText(ProviderText&&) = delete;
    ProviderText& operator=(ProviderText&&) = delete;
    ~ProviderText() {
        if (blob_.data != nullptr) {
            provider_.freeMem(releaseContext_, blob_.data);
        }
    }

    [[nodiscard]] provider::XsigBlob* Receive() { return &blob_; }

    // The text is not terminated for certain, but a length that counts the terminator does no harm.
    [[nodiscard]] std::string_view View() const {
        if (blob_.data == nullptr) {
            return {};
        }
        return {blob_.data, static_cast<std::size_t>(std::find(blob_.data, blob_.data + blob_.length, '\0') -
                                                     blob_.data)};
    }

  private:
    const provider::ProviderFunctions& provider_;
    provider::ProviderContext releaseContext_;
    provider::XsigBlob blob_;
};

}  // namespace

std::vector<ProviderError> PopProviderErrors(const provider::ProviderFunctions& provider,
                                             provider::ProviderContext context,
                                             provider::ProviderContext releaseContext,
                                             const toolkit::SystemText& systemText) {
    std::vector<ProviderError> errors;
    while (errors.size() < kMostProviderErrors) {
        ProviderText text(provider, releaseContext);
        ProviderText file(provider, releaseContext);
        ProviderText data(provider, releaseContext);
        std::uint32_t line = 0;
        if (provider.getErrorLine(context, text.Receive(), file.Receive(), &line, data.Receive()) != 0) {
            break;
        }
        errors.push_back({systemText.Widen(text.View()), systemText.Widen(file.View()), line,
                          systemText.Widen(data.View())});
    }
    return errors;
}

}  // namespace corvane::reporting
