#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

namespace {

constexpr std::int32_t kSubframe1Container = 1;
constexpr std::int32_t kSubframe2Container = 2;
constexpr std::int32_t kMessageContainer = 34;

}  // namespace

// The three data containers overlap by design; NoDefaults keeps writeDefault from
// writing all three over each other.
SubframeDef::SubframeDef()
    : BitStructDef(nullptr, "IRNSS Subframe", bits(0, kBits), {}),
      tlm(this, "TLM", bits(0, 8)),
      towc(this, "TOWC", bits(8, 17)),
      alert(this, "Alert", bits(25, 1)),
      autonav(this, "Autonav", bits(26, 1)),
      subframeId(this, "Subframe ID", bits(27, 2)),
      spare(this, "Spare", bits(29, 1), {flag(Hidden)}),
      subframe1Data(this, "Subframe specific data", bits(30, 232),
                    {container(kSubframe1Container), flag(NoDefaults)}),
      subframe2Data(this, "Subframe specific data", bits(30, 232),
                    {container(kSubframe2Container), flag(NoDefaults)}),
      messageData(this, "Subframe specific data", bits(30, 232),
                  {container(kMessageContainer), flag(NoDefaults)}),
      crc(this, "CRC", bits(262, 24), {flag(RawHexOnly)}),
      tail(this, "Tail", bits(286, 6), {flag(Hidden)}) {}

std::int32_t SubframeDef::activeContainerId(ConstBitBuffer buffer) const {
    switch (subframeId.read(buffer)) {
        case 0:
            return kSubframe1Container;
        case 1:
            return kSubframe2Container;
        default:
            return kMessageContainer;
    }
}

const SubframeDef& irnssSubframeDef() {
    static const SubframeDef subframe;
    return subframe;
}

}  // namespace ZeltNavMsg::Irnss
