#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"
#include "views/value_row.h"

#include <QString>

class QLocale;
class QTime;

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace ferrow {

// The details window's sections, in the order of the report.
// history is the device's own record; energy is the energy history Ferrow keeps; applications is
// where that energy went.
enum class MainSection { overview, power, battery, cells, energy, applications, history };
inline constexpr std::array<MainSection, 7> kMainSections = {MainSection::overview, MainSection::power,        MainSection::battery,
                                                             MainSection::cells,    MainSection::energy,       MainSection::applications,
                                                             MainSection::history};
const char *sectionTitleKey(MainSection section);

// The section the sidebar follows while the user scrolls: the last one whose top has reached the
// band 52 points under the top, else the one nearest below it.
std::optional<MainSection> sectionFollowingScroll(const std::map<MainSection, double> &topOffsets);

// A time of day in the locale's own words, to the second, without a date or a time zone.

const char *overviewTitleKey(const PowerSnapshot &snapshot);
const char *overviewSubtitleKey(const PowerSnapshot &snapshot);

// "+12.3 W" charging, "-8.0 W" discharging, "0.0 W" idle, "—" without data.
QString batteryPowerText(const PowerSnapshot &snapshot);
// The first and last four characters of the serial with bullets between, or bullets alone.
QString maskedSerial(const PowerSnapshot &snapshot);
QString maskedSerial(const std::optional<QString> &serial);
// Minutes as minutes, hours and minutes, or days and hours.
QString durationText(std::optional<std::int64_t> minutes);
QString capacityText(std::optional<std::int64_t> mAh);
QString countText(std::optional<std::int64_t> count);

int cellGridColumns(std::size_t cellCount);
// How full a cell's bar is: 3.0 V empty, 4.25 V full.
double cellBarFraction(double volts);

std::vector<ValueRow> distributionRows(const PowerSnapshot &snapshot);
QString distributionCaption(const PowerSnapshot &snapshot);
std::vector<ValueRow> batteryRows(const PowerSnapshot &snapshot);
std::vector<ValueRow> deviceRows(const PowerSnapshot &snapshot);
std::vector<ValueRow> lifetimeRows(const PowerSnapshot &snapshot);
// "BAT0 · 01AV423": the system's name for a pack and its model.
QString batteryPackTitle(const BatteryPack &pack);
std::vector<ValueRow> batteryPackRows(const BatteryPack &pack);

} // namespace ferrow
