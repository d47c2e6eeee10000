// The records' values against the independent decoders' ground truth of every real
// message: the interface documents' values, where the listing prints raw counts,
// radians under "pi", a signed toc or another layout. Only the ground truth is
// converted: radians to semicircles, the semi-major axis to its offset from the
// reference, full week numbers to the broadcast bits.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "support/RealData.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg {
namespace {

using Testing::kPi;

// The first record whose path is `key` or ends with "." + key.
const DecodedField* record(const DecodedMessage& m, std::string_view key) {
    for (const DecodedField& f : m.fields()) {
        const std::string_view p = f.path();
        if (p == key ||
            (p.size() > key.size() && p.ends_with(key) && p[p.size() - key.size() - 1] == '.')) {
            return &f;
        }
    }
    return nullptr;
}

class Checker {
  public:
    Checker(const DecodedMessage& m, const Testing::RealMessage& r) : m_(m), r_(r) {}

    // Within half a unit of the last digit the ground truth gives (its sources print 7
    // to 15 significant digits), and the 12 digits of the tables' decimal scales.
    // `magnitude`: of the number the ground truth printed, when the comparison is with
    // a difference of it (a semi-major axis less its reference).
    void expect(std::string_view key, double truth, double magnitude = 0.0) {
        const DecodedField* f = record(m_, key);
        if (f == nullptr) {
            ADD_FAILURE() << r_.where << ": no record " << key << " in " << m_.layout();
            return;
        }
        const double tolerance = std::max(std::max(std::fabs(truth), std::fabs(magnitude)) *
                                              (0.5 * std::pow(10.0, 1 - digits) + 1e-11),
                                          1e-300);
        EXPECT_NEAR(f->value(), truth, tolerance) << r_.where << ": " << key;
        ++compared;
    }
    double value(std::string_view key) const {
        const DecodedField* f = record(m_, key);
        return f != nullptr ? f->value() : std::nan("");
    }

    int compared = 0;
    int digits = 15;  // of the ground-truth number being compared

  private:
    const DecodedMessage& m_;
    const Testing::RealMessage& r_;
};

// Significant digits of a ground-truth number ("6.519258e-09" has 7).
int digitsOf(const std::string& text) {
    int digits = 0;
    bool leading = true;
    for (const char ch : text) {
        if (ch == 'e' || ch == 'E' || ch == ' ') {
            break;
        }
        if (ch >= '1' && ch <= '9') {
            leading = false;
        }
        if (ch >= '0' && ch <= '9' && !leading) {
            ++digits;
        }
    }
    return std::max(digits, 1);
}

// The number a ground-truth text starts with; NaN for a name ("G25") or a text.
double truthValue(const std::string& text) {
    char* end = nullptr;
    const double v = std::strtod(text.c_str(), &end);
    return end == text.c_str() ? std::nan("") : v;
}

// Names the ground truth and the records share, and those that differ in name only.
const std::map<std::string, std::string> kLNavNames = {{"TGD", "tgd"},
                                                       {"toc", "toc"},
                                                       {"af2", "af2"},
                                                       {"af1", "af1"},
                                                       {"af0", "af0"},
                                                       {"Crs", "crs"},
                                                       {"Cuc", "cuc"},
                                                       {"Cus", "cus"},
                                                       {"Cic", "cic"},
                                                       {"Cis", "cis"},
                                                       {"Crc", "crc"},
                                                       {"e", "e"},
                                                       {"toe", "toe"},
                                                       {"toa", "toa"},
                                                       {"A0", "A0"},
                                                       {"A1", "A1"},
                                                       {"tot", "tot"},
                                                       {"alpha0", "alfa0"},
                                                       {"alpha1", "alfa1"},
                                                       {"alpha2", "alfa2"},
                                                       {"alpha3", "alfa3"},
                                                       {"beta0", "beta0"},
                                                       {"beta1", "beta1"},
                                                       {"beta2", "beta2"},
                                                       {"beta3", "beta3"},
                                                       {"WN", "wn"},
                                                       {"L2code", "cap"},
                                                       {"URA", "ura"},
                                                       {"SVhealth", "sv_health"},
                                                       {"IODC", "iodc"},
                                                       {"IODE", "iode"},
                                                       {"fit", "fit"},
                                                       {"health", "sv_health"},
                                                       {"WNt", "wnt"},
                                                       {"dtLS", "dtls"},
                                                       {"WNLSF", "wnlsf"},
                                                       {"DN", "dn"},
                                                       {"dtLSF", "dtlsf"},
                                                       {"AI", "AI"},
                                                       {"WNa", "wna"},
                                                       {"AODO", "aodo"}};
const std::map<std::string, std::string> kLNavAngles = {{"dn", "deltan"},         {"M0", "m0"},
                                                        {"OMEGA0", "omega0"},     {"omega", "w"},
                                                        {"OMEGAdot", "omegadot"}, {"IDOT", "idot"}};

// The NMCT's 30 ERD slots hold the SVs other than the transmitting one, by PRN; the
// ground truth names them by PRN. Slots whose six bits straddle two words (3, 7, ...,
// 27) disagree with the parity-checked bits in the ground truth's source, which reads
// them across the word boundary otherwise: they are not compared.
void checkErd(Checker& c, const Testing::RealMessage& r, const std::string& key, double v) {
    const int prn = std::stoi(key.substr(3));
    const int own = std::stoi(r.satellite.substr(1));
    if (prn == own) {
        return;  // not broadcast
    }
    const int slot = prn < own ? prn : prn - 1;
    if (slot % 4 == 3) {
        return;
    }
    c.expect("ERD" + std::to_string(slot), v);
}

void checkLNav(Checker& c, const Testing::RealMessage& r) {
    const bool almanac = r.truth.contains("almSV");
    for (const auto& [key, text] : r.truth) {
        const double v = truthValue(text);
        c.digits = digitsOf(text);
        if (kLNavNames.contains(key)) {
            c.expect(kLNavNames.at(key), v);
        } else if (kLNavAngles.contains(key)) {
            c.expect(kLNavAngles.at(key), v / kPi);
        } else if (key == "i0") {
            // The almanac gives the inclination as its offset from 0.3 semicircles.
            c.expect(almanac ? "delta_i" : "i0", v / kPi - (almanac ? 0.3 : 0.0));
        } else if (key == "sqrtA") {
            c.expect(almanac ? "sqrta" : "asqrt", v);
        } else if (key == "TOW") {
            c.expect("tow_count", v / 6);  // the HOW counts 6-second subframes
        } else if (key == "almSV") {
            c.expect("sv_id", std::stoi(text.substr(1)));
        } else if (key.starts_with("ERD")) {
            checkErd(c, r, key, v);
        } else if (key.starts_with("ASconfig_G")) {
            c.expect("asv" + std::to_string(std::stoi(key.substr(10))), v);
        } else if (key.starts_with("health_G")) {
            c.expect("svh" + std::to_string(std::stoi(key.substr(8))), v);
        } else if (key == "text") {
            // 22 Latin-1 characters, written as UTF-8 between quotes.
            const std::string quoted = text.substr(1, text.size() - 2);
            int n = 0;
            for (std::size_t i = 0; i < quoted.size(); ++i, ++n) {
                auto ch = static_cast<unsigned char>(quoted[i]);
                const unsigned code =
                    ch < 0x80
                        ? ch
                        : ((ch & 0x1FU) << 6) | (static_cast<unsigned char>(quoted[++i]) & 0x3FU);
                c.expect((n < 9 ? "ch0" : "ch") + std::to_string(n + 1), code);
            }
            EXPECT_EQ(n, 22) << r.where;
        } else {
            ADD_FAILURE() << r.where << ": no check for " << key;
        }
    }
}

const std::map<std::string, std::string> kBeidouNames = {
    {"A0UTC", "a0utc"},     {"A1UTC", "a1utc"},   {"AODC", "iodc"},     {"AODE", "iode"},
    {"Cic", "cic"},         {"Cis", "cis"},       {"Crc", "crc"},       {"Crs", "crs"},
    {"Cuc", "cuc"},         {"Cus", "cus"},       {"DN", "dn"},         {"FraID", "fraid"},
    {"Pnum", "pnum"},       {"SOW", "sow"},       {"SatH1", "sath1"},   {"TGD1", "tgd1"},
    {"TGD2", "tgd2"},       {"URAI", "urai"},     {"WN", "wn"},         {"WNLSF", "wnlsf"},
    {"a0", "a0"},           {"a1", "a1"},         {"a2", "a2"},         {"alpha0", "alpha0"},
    {"alpha1", "alpha1"},   {"alpha2", "alpha2"}, {"alpha3", "alpha3"}, {"beta0", "beta0"},
    {"beta1", "beta1"},     {"beta2", "beta2"},   {"beta3", "beta3"},   {"dtLS", "deltatls"},
    {"dtLSF", "deltatlsf"}, {"e", "e"},           {"sqrtA", "sqrta"},   {"toa", "toa"},
    {"toc", "toc"},         {"toe", "toe"}};
const std::map<std::string, std::string> kBeidouAngles = {
    {"dn", "deltan"},         {"M0", "m0"},    {"OMEGA0", "omega0"}, {"omega", "w"},
    {"OMEGAdot", "omegadot"}, {"IDOT", "idot"}};

void checkBeidou(Checker& c, const Testing::RealMessage& r, bool d2) {
    const bool almanac = r.truth.contains("almSV");
    for (const auto& [key, text] : r.truth) {
        const double v = truthValue(text);
        c.digits = digitsOf(text);
        if (key.find('[') != std::string::npos || (!d2 && key == "toe")) {
            continue;  // a value split over two pages or subframes ("toe_1", "cuc_2"...)
        }
        if (key == "almSV") {
            continue;  // the page number, not a field
        }
        if (kBeidouNames.contains(key)) {
            c.expect(kBeidouNames.at(key), v);
        } else if (kBeidouAngles.contains(key)) {
            c.expect(kBeidouAngles.at(key), v / kPi);
        } else if (key == "i0") {
            // Almanac: the offset from 0.3 semicircles, or from 0 for a GEO satellite.
            const bool geo = almanac && std::stoi(r.truth.at("almSV").substr(1)) <= 5;
            c.expect(almanac ? "deltai" : "i0", v / kPi - (almanac && !geo ? 0.3 : 0.0));
        } else {
            ADD_FAILURE() << r.where << ": no check for " << key;
        }
    }
}

// GPS CNAV-2 and BeiDou B-CNAV1/B-CNAV2.
void checkFrame(Checker& c, const Testing::RealMessage& r, MessageFormat format) {
    const bool gps = format == MessageFormat::GpsCNav2;
    const std::map<std::string, std::string> names = {{"toe", "toe"},
                                                      {"top", "top"},
                                                      {"L1Chealth", "L1C health"},
                                                      {"Adot", "dA"},
                                                      {"e", "e"},
                                                      {"Cis", "Cis"},
                                                      {"Cic", "Cic"},
                                                      {"Crs", "Crs"},
                                                      {"Crc", "Crc"},
                                                      {"Cus", "Cus"},
                                                      {"Cuc", "Cuc"},
                                                      {"af0", "af0"},
                                                      {"af1", "af1"},
                                                      {"af2", "af2"},
                                                      {"TGD", "TGDB2ap"},
                                                      {"ISC_L1CD", "ISCL1Cd"},
                                                      {"ISC_L1CP", "ISCL1Cp"},
                                                      {"URA_ED", "URAedINDEX"},
                                                      {"ITOW", "ITOW"},
                                                      {"TOI", "TOI"},
                                                      {"toc", "toc"},
                                                      {"a0", "a0"},
                                                      {"a1", "a1"},
                                                      {"a2", "a2"},
                                                      {"IODC", "IODC"},
                                                      {"IODE", "IODE"},
                                                      {"TGD_B2ap", "TGDB2ap"},
                                                      {"TGD_B1Cp", "TGDB1Cp"},
                                                      {"ISC_B2ad", "ISCB2ad"},
                                                      {"ISC_B1Cd", "ISCB1Cd"},
                                                      {"HS", "HS"},
                                                      {"SatType", "SatType"},
                                                      {"SISAI_OE", "SISAIoe"},
                                                      {"HOW", "HOW"}};
    const std::map<std::string, std::string> angles = {
        {"dn0", "deltaN0"},   {"dn0dot", "dDeltaN0"}, {"M0", "M0"},   {"omega", "w"},
        {"OMEGA0", "Omega0"}, {"i0", "i0"},           {"IDOT", "di0"}};
    for (const auto& [key, text] : r.truth) {
        const double v = truthValue(text);
        c.digits = digitsOf(text);
        if (names.contains(key)) {
            c.expect(names.at(key), v);
        } else if (angles.contains(key)) {
            c.expect(angles.at(key), v / kPi);
        } else if (key == "OMEGAdot") {
            // GPS broadcasts the offset from -2.6e-9 semicircles/s; BeiDou the rate.
            c.expect("dOmega", v / kPi - (gps ? -2.6e-9 : 0.0));
        } else if (key == "A") {
            // The offset from the reference: GPS 26559710 m, QZSS 42164200 m; BeiDou
            // 27906100 m (MEO, type 3) or 42162200 m (IGSO and GEO).
            const double reference = gps ? (r.satellite[0] == 'J' ? 42164200.0 : 26559710.0)
                                     : c.value("SatType") == 3.0 ? 27906100.0
                                                                 : 42162200.0;
            c.expect("deltaA", v - reference, v);
        } else if (key == "WN") {
            c.expect("WN", std::fmod(v, 8192.0));  // 13 bits broadcast
        } else if (key == "WNop") {
            c.expect("WNop", std::fmod(v, 256.0));  // 8 bits broadcast
        } else if (key == "SOH") {
            c.expect("SOH", v * 18);  // counted in 18 s
        } else if (key == "SOW" && format == MessageFormat::BeidouCNav1) {
            continue;  // not broadcast: HOW and SOH
        } else if (key == "SOW") {
            c.expect("SOW", v);
        } else {
            ADD_FAILURE() << r.where << ": no check for " << key;
        }
    }
}

void checkIrnss(Checker& c, const Testing::RealMessage& r) {
    const std::map<std::string, std::string> names = {
        {"toe", "toe"}, {"e", "e"}, {"sqrtA", "sqrtA"}, {"TOWC", "TOWC"}};
    const std::map<std::string, std::string> angles = {{"M0", "M0"},
                                                       {"OMEGA0", "Omega0"},
                                                       {"omega", "omega"},
                                                       {"OMEGAdot", "omegaDot"},
                                                       {"i0", "i0"}};
    for (const auto& [key, text] : r.truth) {
        const double v = truthValue(text);
        c.digits = digitsOf(text);
        if (names.contains(key)) {
            c.expect(names.at(key), v);
        } else if (angles.contains(key)) {
            c.expect(angles.at(key), v / kPi);
        } else {
            ADD_FAILURE() << r.where << ": no check for " << key;
        }
    }
}

TEST(RecordRealData, ValuesAreTheInterfaceDocuments) {
    for (const Testing::SupportedFormat& f : Testing::kSupportedFormats) {
        int compared = 0;
        for (const Testing::RealMessage& r : Testing::loadRealData(f.realDataFile)) {
            const DecodedMessage m =
                NavMessageDecoder::DecodeFields(f.format, r.subframe, r.page, r.hex);
            Checker c(m, r);
            switch (f.format) {
                case MessageFormat::GpsLNav:
                case MessageFormat::QzssLNav:
                    checkLNav(c, r);
                    break;
                case MessageFormat::BeidouD1:
                case MessageFormat::BeidouD2:
                    checkBeidou(c, r, f.format == MessageFormat::BeidouD2);
                    break;
                case MessageFormat::Irnss:
                    checkIrnss(c, r);
                    break;
                default:
                    checkFrame(c, r, f.format);
                    break;
            }
            compared += c.compared;
        }
        // Every ground-truth value but the documented exceptions is compared.
        const std::map<std::string_view, int> expected = {
            {"gps_lnav.tsv", 1310},    {"qzss_lnav.tsv", 815},  {"beidou_d1.tsv", 873},
            {"beidou_d2.tsv", 585},    {"gps_cnav2.tsv", 1230}, {"beidou_cnav1.tsv", 1269},
            {"beidou_cnav2.tsv", 528}, {"irnss.tsv", 9}};
        EXPECT_EQ(compared, expected.at(f.realDataFile)) << f.realDataFile;
    }
}

}  // namespace
}  // namespace ZeltNavMsg
