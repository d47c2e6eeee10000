// The legacy listing, printed from a plan digested at compile time, against the plain
// snprintf listing (bench/baseline/NaiveLegacyListing) of the same table: for every real
// message, random bits under every subframe and page, and short records. Entry
// selection, the text page's characters (NUL and line feed included) and the passes
// follow from these.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "baseline/NaiveLegacyListing.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Baseline::naiveLegacyListing;
using namespace ZeltNavMsg::Legacy;

struct Signal {
    MessageFormat format;
    const SubframeIf* table;
    const char* dataFile;
};
const Signal kSignals[] = {
    {MessageFormat::GpsLNav, &GPS_L1CA_Interface, "gps_lnav.tsv"},
    {MessageFormat::QzssLNav, &QZSS_L1CA_Interface, "qzss_lnav.tsv"},
    {MessageFormat::BeidouD1, &BEIDOU_D1_Interface, "beidou_d1.tsv"},
    {MessageFormat::BeidouD2, &BEIDOU_D2_Interface, "beidou_d2.tsv"},
};

std::string randomHex(std::mt19937& random, std::size_t digits) {
    std::string hex;
    for (std::size_t i = 0; i < digits; ++i) {
        hex += "0123456789ABCDEF"[random() % 16];
    }
    return hex;
}

// Real messages under their own page and others (the page decides the layout), random
// bits under every subframe and page of every layout map, and records of every length:
// fewer than 75 digits leave words that the decoder cannot write back (reported on
// standard error) and fields that read zeros; 76 digits carry four bits past word 10.
TEST(ListingPlan, RealRandomShortAndLongSubframes) {
    std::mt19937 random(21);
    const auto expectPlain = [](const Signal& signal, std::int32_t subframe, std::int32_t page,
                                const std::string& hex) {
        ASSERT_EQ(NavMessageDecoder::Decode(signal.format, subframe, page, hex),
                  naiveLegacyListing(*signal.table, subframe, page, hex))
            << "subframe " << subframe << " page " << page << " " << hex;
    };
    testing::internal::CaptureStderr();
    for (const Signal& signal : kSignals) {
        for (const auto& m : ZeltNavMsg::Testing::loadRealData(signal.dataFile)) {
            for (const std::int32_t page : {m.page, 0, 13, 17, 18, 25, 35, 101}) {
                expectPlain(signal, m.subframe, page, m.hex);
            }
        }
        for (std::int32_t subframe = -1; subframe <= 6; ++subframe) {
            for (std::int32_t page = -1; page <= 122; ++page) {
                expectPlain(signal, subframe, page, randomHex(random, 75));
            }
        }
        for (std::size_t digits = 1; digits <= 76; ++digits) {
            for (const std::int32_t subframe : {1, 2, 3, 4, 5}) {
                expectPlain(signal, subframe, 17, randomHex(random, digits));
            }
        }
    }
    (void)testing::internal::GetCapturedStderr();
}

}  // namespace
