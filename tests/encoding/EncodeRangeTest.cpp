// A value is encoded only when it rounds to a code the field holds: the ends of every
// field's range are taken, one LSB beyond is refused with the field, range, LSB and value.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "records/LayoutCases.h"
#include "zeltnavmsg/MessageEncoder.h"

namespace ZeltNavMsg {
namespace {

std::string refusal(const FieldInfo& field, double value) {
    try {
        (void)MessageEncoder::rawOf(field, value);
    } catch (const EncodingError& e) {
        return e.what();
    }
    return "taken";
}

TEST(EncodeRange, EveryFieldTakesItsEndsAndRefusesOneLsbBeyond) {
    for (const Testing::LayoutCase& c : Testing::layoutCases(nullptr)) {
        const DecodedMessage m =
            NavMessageDecoder::DecodeFields(c.format, c.subframe, c.page, c.hex);
        for (const DecodedField& f : m.fields()) {
            const std::int32_t w = f.bitCount();
            if (w > 53 || f.role() == FieldRole::Word) {
                continue;  // codes beyond a double's precision are set raw
            }
            SCOPED_TRACE(std::string(m.layout()) + ": " + std::string(f.path()));
            const std::uint64_t top = std::uint64_t{1} << (w - 1);
            const bool isSigned = MessageEncoder::valueOf(f.info(), top) < 0;
            const std::uint64_t lowRaw = isSigned ? top : 0;
            const std::uint64_t highRaw = isSigned ? top - 1 : 2 * top - 1;
            const double low = MessageEncoder::valueOf(f.info(), lowRaw);
            const double high = MessageEncoder::valueOf(f.info(), highRaw);
            const double lsb = std::abs(MessageEncoder::valueOf(f.info(), 1));
            EXPECT_EQ(MessageEncoder::rawOf(f.info(), low), lowRaw);
            EXPECT_EQ(MessageEncoder::rawOf(f.info(), high), highRaw);
            EXPECT_EQ(MessageEncoder::rawOf(f.info(), high + 0.49 * lsb), highRaw);
            EXPECT_EQ(MessageEncoder::rawOf(f.info(), low - 0.49 * lsb), lowRaw);
            for (const double beyond : {high + lsb, low - lsb, high + 0.51 * lsb}) {
                const std::string text = refusal(f.info(), beyond);
                EXPECT_TRUE(text.starts_with(std::string(f.path()) + ": ")) << text;
                EXPECT_NE(text.find(" is outside the range "), std::string::npos) << text;
                EXPECT_NE(text.find(" (LSB "), std::string::npos) << text;
            }
        }
    }
}

struct Refused {
    MessageFormat format;
    std::int32_t subframe;
    const char* selector;  // "path=raw" set first, or empty
    const char* key;
    double value;
    const char* text;
};

// Ranges worked out from the documents' widths and scales.
TEST(EncodeRange, RefusalsNameFieldRangeLsbAndValue) {
    using F = MessageFormat;
    const Refused cases[] = {
        {F::GpsLNav, 2, "", "toe", 1048576,
         "toe: 1048576 s is outside the range 0 to 1048560 s (LSB 16 s)"},
        {F::GpsLNav, 2, "", "aodo", 28800,
         "aodo: 28800 s is outside the range 0 to 27900 s (LSB 900 s)"},
        {F::BeidouD1, 1, "", "toc", -8, "toc: -8 s is outside the range 0 to 1048568 s (LSB 8 s)"},
        {F::BeidouCNav2, 0, "MesType", "SOW", 786432,
         "SOW: 786432 s is outside the range 0 to 786429 s (LSB 3 s)"},
        {F::GpsCNav2, 0, "", "M0", 1,
         "Subframe 2.Ephemeris.M0: 1 semicircles is outside the range -1 to 0.9999999997671694 "
         "semicircles (LSB 2.3283064365386963e-10 semicircles)"},
        {F::GpsLNav, 1, "", "sv_health", 64, "sv_health: 64 is outside the range 0 to 63 (LSB 1)"},
    };
    for (const Refused& c : cases) {
        MessageEncoder encoder(c.format, c.subframe, 0);
        if (*c.selector != '\0') {
            encoder.setRaw(c.selector, 10);
        }
        try {
            encoder.set(c.key, c.value);
            ADD_FAILURE() << c.key << " took " << c.value;
        } catch (const EncodingError& e) {
            EXPECT_STREQ(e.what(), c.text);
        }
    }
}

TEST(EncodeRange, RawBitsWordsAndUnknownFields) {
    MessageEncoder encoder(MessageFormat::GpsLNav, 2, 0);
    const auto what = [&](auto&& call) -> std::string {
        try {
            call();
        } catch (const EncodingError& e) {
            return e.what();
        }
        return "no error";
    };
    EXPECT_EQ(what([&] { encoder.setRaw("toe", 0x10000); }),
              "toe: raw value 0x10000 does not fit in its 16 bits");
    EXPECT_EQ(what([&] { encoder.setRaw("toe", 0xFFFF); }), "no error");
    EXPECT_EQ(what([&] { encoder.setRaw("Word 3", 0); }),
              "Word 3: a whole word as received, which its fields make; set them instead");
    EXPECT_EQ(what([&] { encoder.set("toc", 0); }),
              "no field \"toc\" in Subframe 2: ephemeris, first part");
    // A field of another format is refused, not written at its places.
    MessageEncoder beidou(MessageFormat::BeidouD1, 1, 0);
    EXPECT_EQ(what([&] { beidou.setRaw(encoder.field("toe"), 1); }),
              "toe: a field of GpsLNav, not of BeidouD1");
    // Wide reserved fields come in records of at most 64 bits, set one by one.
    MessageEncoder frame(MessageFormat::BeidouCNav2, 0, 0);
    for (std::int32_t part = 0; part < 4; ++part) {
        frame.setRaw(frame.field("Message data", part), 1);
    }
    EXPECT_NE(what([&] { (void)frame.field("Message data", 4); }).find("it has 4 parts"),
              std::string::npos);
    const DecodedMessage& m = frame.message();
    std::int32_t parts = 0;
    for (const DecodedField& f : m.fields()) {
        if (f.path() == "Message data") {
            EXPECT_EQ(f.raw(), 1U);
            ++parts;
        }
    }
    EXPECT_EQ(parts, 4);
}

}  // namespace
}  // namespace ZeltNavMsg
