#include "standin/served_certificate.h"

#include "standin/usage_byte.h"

namespace corvane::standin {
namespace {

struct NarrowAttribute {
    std::string key;
    std::string value;
};

std::vector<NarrowAttribute> NarrowAttributes(const std::vector<NameAttribute>& encoded,
                                              const StandInSystem& system) {
    std::vector<NarrowAttribute> attributes;
    for (const NameAttribute& attribute : InReadingOrder(encoded)) {
        attributes.push_back(
            {std::string(AttributeKey(attribute.objectId)), system.Narrow(PrintableValue(attribute.value))});
    }
    return attributes;
}

std::string NameText(const std::vector<NarrowAttribute>& attributes) {
    std::string text;
    for (const NarrowAttribute& attribute : attributes) {
        if (!text.empty()) {
            text += ',';
        }
        text += attribute.key + '=' + attribute.value;
    }
    return text;
}

}  // namespace

Bytes SerialInReadingOrder(const Bytes& lowestFirst) {
    Bytes serial(lowestFirst.rbegin(), lowestFirst.rend());
    if (serial.size() > 1 && serial.front() == 0) {
        serial.erase(serial.begin());
    }
    return serial;
}

ServedCertificate PrepareCertificate(const DecodedCertificate& decoded, const StandInSystem& system) {
    const std::vector<NarrowAttribute> subject = NarrowAttributes(decoded.subject, system);
    ServedCertificate served;
    served.owner = NameText(subject);
    served.issuer = NameText(NarrowAttributes(decoded.issuer, system));
    served.name.text = system.WidenUpper(served.owner);
    for (const NarrowAttribute& attribute : subject) {
        served.name.attributes.push_back(
            {system.WidenUpper(attribute.key), system.WidenUpper(attribute.value)});
    }
    served.usage = UsageByte(decoded.keyUsage);
    served.serial = SerialInReadingOrder(decoded.serial);
    served.encoded = decoded.encoded;
    served.encodedIssuer = decoded.encodedIssuer;
    return served;
}

}  // namespace corvane::standin
