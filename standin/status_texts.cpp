#include "standin/status_texts.h"

namespace corvane::standin {

std::string_view StatusText(std::uint32_t status) {
    switch (status) {
        case kStatusOk:
            return "The operation completed successfully";
        case kStatusOutOfMemory:
            return "Not enough memory";
        case kStatusUnexpected:
            return "Unexpected failure inside the stand-in library";
        case kStatusUnknownCsProfile:
            return "The CS profile does not exist";
        case kStatusUnknownContext:
            return "The cryptocontext does not exist";
        case kStatusUnknownControlCode:
            return "The control code is not known";
        case kStatusForeignMemory:
            return "The memory was not handed out by this library or was released before";
        case kStatusStackEmpty:
            return "The error stack is empty";
        case kStatusLocalStoreClosed:
            return "The local certificate store cannot be read";
        case kStatusNetworkStoreSilent:
            return "The network certificate store does not answer";
        case provider::kStatusNothingFound:
            return "Nothing was found";
        case kStatusDistributionPointSilent:
            return "The CRL distribution point does not answer";
        case kStatusRevocationListRefused:
            return "A certificate revocation list was refused";
        default:
            return {};
    }
}

}  // namespace corvane::standin
