#include "tutorials/clock.h"

#include "app/simulation.h"
#include "app/tolerance.h"
#include "tutorials/solar_days.h"
#include "tutorials/step_controls.h"
#include "tutorials/strokes.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace selvane {

namespace {

using std::chrono::sys_days;

constexpr int kDaysFromSolsticeToNewYear = 10;
constexpr double kDialDays = 366.25;     // days of a full turn on the dial
constexpr double kFarthestOffset = 4e11; // seconds, more than all years that have a name

// The calendar without its time zone: local dates count like universal ones here.
sys_days DateOf(const LocalTime& time)
{
    using namespace std::chrono;
    return year(time.year) / month(static_cast<unsigned>(time.month)) /
           day(static_cast<unsigned>(time.day));
}

LocalTime TimeAt(std::chrono::sys_seconds instant)
{
    using namespace std::chrono;
    const auto midnight = floor<days>(instant);
    const year_month_day date(midnight);
    const hh_mm_ss clock(instant - midnight);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

void Season(Picture& picture, double x, double y, std::string_view name, std::string_view event)
{
    picture.Line(x, y, 0, 0, kDarkGrey);
    picture.Circle(x, y, kEarthRadius, kDarkGrey);
    TextAt(picture, x - 18, y + 12, name);
    TextAt(picture, x - 18, y, event);
}

void Seasons(Picture& picture)
{
    picture.FillStyle = Fill::Solid;
    picture.FillColor = kDarkGrey;
    Season(picture, -kPathRadius, 0, "Winter", "Solstice");
    Season(picture, kPathRadius, 0, "Summer", "Solstice");
    Season(picture, 0, kPathRadius, "Fall", "Equinox");
    Season(picture, 0, -kPathRadius, "Spring", "Equinox");
}

void Times(Simulation& sim)
{
    Picture& picture = sim.picDemo;
    const std::string gmt = ClockText(HoursEarlier(sim.now, sim.state.GmtOffset));
    const std::string local = ClockText(sim.now);
    TextAt(picture, picture.ScaleLeft + 2, picture.ScaleTop - 2,
           "GMT:  " + gmt + "    Local Time:  " + local);
}

// The day's colour with the night half laid over it, and a white line that turns with the hours.
void TurningEarth(Simulation& sim, const EarthOnDial& earth)
{
    Picture& picture = sim.picDemo;
    picture.Line(0, 0, earth.x, earth.y, kSunYellow);
    picture.ForeColor = picture.FillColor = kEarthDay;
    picture.Circle(earth.x, earth.y, kEarthRadius, kEarthDay);
    picture.FillColor = kEarthNight;
    EarthHalf(sim, earth.x, earth.y, kEarthNight, earth.orbitRad);
    picture.ForeColor = RGB(159, 159, 159);
    sim.state.PosRadius = kEarthRadius;
    EarthEquator(sim, earth.x, earth.y);
    EarthMeridian(sim, earth.x, earth.y, earth.spinRad);
    picture.ForeColor = kWhite;
    EarthMeridian(sim, earth.x, earth.y, earth.spinRad + sim.state.Pi / 2);
}

} // namespace

int DaysGone(const LocalTime& time)
{
    return static_cast<int>((DateOf(time) - DateOf({time.year, 1, 1})).count());
}

int SecondsSinceMidnight(const LocalTime& time)
{
    return time.hour * 3600 + time.minute * 60 + time.second;
}

std::optional<LocalTime> HoursEarlier(const LocalTime& time, double hours)
{
    const double offset = std::round(hours * 3600);
    if (!(std::fabs(offset) < kFarthestOffset)) return std::nullopt;
    const std::chrono::seconds shift(SecondsSinceMidnight(time) - std::llround(offset));
    const LocalTime earlier = TimeAt(DateOf(time) + shift);
    if (earlier.year < 1 || earlier.year > 9999) return std::nullopt;
    return earlier;
}

std::string ClockText(const std::optional<LocalTime>& time)
{
    static constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                           "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    if (!time || time->year < 1 || time->year > 9999) return "N/A";
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%04d-%s-%02d %02d:%02d:%02d", time->year,
                  kMonths.at(static_cast<std::size_t>(time->month) - 1), time->day, time->hour,
                  time->minute, time->second);
    return text.data();
}

EarthOnDial PlaceOnDial(int daysGone, int daySeconds, double gmtOffset)
{
    constexpr double pi = std::numbers::pi;
    EarthOnDial earth{};
    earth.orbitDeg = (daysGone + kDaysFromSolsticeToNewYear) * 360 / kDialDays;
    earth.orbitRad = earth.orbitDeg * pi / 180;
    earth.x = -kPathRadius * std::cos(earth.orbitRad);
    earth.y = -kPathRadius * std::sin(earth.orbitRad);
    earth.spinDeg = SettledFloor(earth.orbitDeg + 360.0 * daySeconds / 24 / 3600);
    // Whole days turn nothing, and an angle of many turns would leave no digits for the lines.
    const double hours = std::fabs(gmtOffset) > 24 ? std::fmod(gmtOffset, 24) : gmtOffset;
    earth.spinRad = (-hours * 360 / 24 + earth.spinDeg) * pi / 180;
    return earth;
}

void Demo32(Simulation& sim)
{
    sim.picDemo.Cls();
    Enable(sim, tmrTime, true);
    ShowRangeControls(sim);
    NameRange(sim, "GMT Offset", "The difference between GMT and local time.");
}

void tmrTime_Timer(Simulation& sim)
{
    Picture& picture = sim.picDemo;
    picture.Cls();
    picture.ForeColor = kLightGrey;
    sim.state.GmtOffset = Number(sim, txtRange);
    Times(sim);
    Seasons(picture);
    const int daysGone = DaysGone(sim.now);
    const int daySeconds = SecondsSinceMidnight(sim.now);
    SunDisc(picture);
    TurningEarth(sim, PlaceOnDial(daysGone, daySeconds, sim.state.GmtOffset));
}

} // namespace selvane
