#include "BenchData.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Bench {

namespace {

const BitStructDef& gpsCNav2() {
    return GpsCNav2::gpsCNav2FrameDef();
}
const BitStructDef& beidouCNav1() {
    return BeidouCNav1::beidouCNav1FrameDef();
}
const BitStructDef& beidouCNav2() {
    return BeidouCNav2::beidouCNav2FrameDef();
}
const BitStructDef& irnss() {
    return Irnss::irnssSubframeDef();
}

}  // namespace

const std::vector<BenchFormat>& formats() {
    static const std::vector<BenchFormat> kFormats = {
        {"GpsLNav", MessageFormat::GpsLNav, "gps_lnav.tsv", &Legacy::GPS_L1CA_Interface},
        {"QzssLNav", MessageFormat::QzssLNav, "qzss_lnav.tsv", &Legacy::QZSS_L1CA_Interface},
        {"BeidouD1", MessageFormat::BeidouD1, "beidou_d1.tsv", &Legacy::BEIDOU_D1_Interface},
        {"BeidouD2", MessageFormat::BeidouD2, "beidou_d2.tsv", &Legacy::BEIDOU_D2_Interface},
        {"GpsCNav2", MessageFormat::GpsCNav2, "gps_cnav2.tsv", nullptr, gpsCNav2, 883},
        {"BeidouCNav1", MessageFormat::BeidouCNav1, "beidou_cnav1.tsv", nullptr, beidouCNav1, 878},
        {"BeidouCNav2", MessageFormat::BeidouCNav2, "beidou_cnav2.tsv", nullptr, beidouCNav2, 288},
        {"Irnss", MessageFormat::Irnss, "irnss.tsv", nullptr, irnss, 292},
    };
    return kFormats;
}

const BenchFormat* findFormat(const std::string& name) {
    for (const BenchFormat& format : formats()) {
        if (name == format.name) {
            return &format;
        }
    }
    return nullptr;
}

// Columns of a data line, TAB-separated: format, satellite, subframe, page, hex, ...
std::vector<Message> loadMessages(const char* fileName) {
    const std::string path = std::string(ZELTNAVMSG_REAL_DATA_DIR) + "/" + fileName;
    std::ifstream file(path);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return {};
    }
    std::vector<Message> messages;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::istringstream cells(line);
        std::string format;
        std::string satellite;
        std::string subframe;
        std::string page;
        Message m;
        std::getline(cells, format, '\t');
        std::getline(cells, satellite, '\t');
        std::getline(cells, subframe, '\t');
        std::getline(cells, page, '\t');
        std::getline(cells, m.hex, '\t');
        m.subframe = std::stoi(subframe);
        m.page = std::stoi(page);
        messages.push_back(std::move(m));
    }
    return messages;
}

}  // namespace ZeltNavMsg::Bench
