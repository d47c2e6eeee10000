// Satellite, signal and format names to enumeration values, and their errors: every row
// of tests/data/names.tsv.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::NavMessageDecoder;

std::string lookUp(const std::string& lookup, const std::string& sat, const std::string& name) {
    try {
        if (lookup == "signal") {
            return std::to_string(
                static_cast<int>(NavMessageDecoder::GetSignalTypeFromString(sat, name)));
        }
        if (lookup == "format") {
            return std::to_string(
                static_cast<int>(NavMessageDecoder::GetMessageFormatFromString(sat, name)));
        }
        if (lookup == "default") {
            return NavMessageDecoder::GetDefaultMessageFormatString(sat);
        }
        return "no lookup " + lookup;
    } catch (const DecodingError& e) {
        return std::string("DecodingError: ") + e.what();
    } catch (const std::invalid_argument& e) {
        return std::string("std::invalid_argument: ") + e.what();
    }
}

TEST(NameLookup, EveryRowOfTheTable) {
    const auto rows = ZeltNavMsg::Testing::loadTable("names.tsv");
    EXPECT_EQ(rows.size(), 63U);
    for (const auto& row : rows) {
        ASSERT_EQ(row.cells.size(), 4U) << row.where;
        EXPECT_EQ(lookUp(row.cells[0], row.cells[1], row.cells[2]), row.cells[3]) << row.where;
    }
}

TEST(DecodingErrorType, CarriesItsMessage) {
    static_assert(std::is_base_of_v<std::exception, DecodingError>);
    static_assert(!std::is_base_of_v<std::runtime_error, DecodingError>);
    EXPECT_STREQ(DecodingError().what(), "");
    const DecodingError original("no such format");
    const DecodingError copy = original;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_STREQ(copy.what(), "no such format");
}

}  // namespace
