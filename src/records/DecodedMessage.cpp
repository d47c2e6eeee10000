#include "zeltnavmsg/DecodedMessage.h"

#include <algorithm>

#include "fields/BitFieldValueDef.h"
#include "fields/ReadableDescription.h"
#include "legacy/SubframeIf.h"
#include "records/FieldDetail.h"
#include "text/TextBuffer.h"

namespace ZeltNavMsg {

bool DecodedMessage::ok() const noexcept {
    return std::all_of(checks_.begin(), checks_.end(), [](const CheckResult& c) { return c.ok(); });
}

const DecodedField* DecodedMessage::find(std::string_view key) const noexcept {
    for (const DecodedField& f : fields_) {
        if (f.path() == key) {
            return &f;
        }
    }
    for (const DecodedField& f : fields_) {
        if (f.name() == key) {
            return &f;
        }
    }
    return nullptr;
}

std::string DecodedMessage::listingText(const DecodedField& field) const {
    if (!field.info().listed) {
        return {};
    }
    const Records::ListingSource* source =
        &static_cast<const Records::FieldDetail*>(field.info().detail)->listing;
    Text::TextBuffer text("\r\n");
    if (source->treeField != nullptr) {
        const ConstBitBuffer buffer(bits_.data(), source->frameBits);
        Describe::appendValueText(*source->treeField, source->treeField->readRaw(buffer), text);
    } else {
        // The listing reads the subframe padded with zero bytes.
        std::uint8_t padded[Legacy::kPaddedDataBytes] = {};
        std::copy_n(source->rawPass ? received_.data() : bits_.data(),
                    Legacy::subframe_t::kDataBytes, padded);
        Legacy::appendLineValue(*source->legacyLine, padded, text);
    }
    return text.str();
}

}  // namespace ZeltNavMsg
