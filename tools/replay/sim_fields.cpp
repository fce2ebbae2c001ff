#include "replay/sim_fields.h"

#include "replay/value_text.h"

#include <algorithm>
#include <concepts>

namespace selvane::replay {

namespace {

template <typename Number>
requires std::integral<Number> || std::floating_point<Number> std::string TextOf(Number value)
{
    return NumberText(static_cast<double>(value));
}
std::string TextOf(bool value)
{
    return value ? "1" : "0";
}
std::string TextOf(const std::string& value)
{
    return Escaped(value);
}
std::string TextOf(Colour value)
{
    return ColourText(value);
}
std::string TextOf(PictureId value)
{
    if (value == PictureId::None) return "-";
    return std::string(value == PictureId::picSelvane ? kPicSelvane.name : kPicDemo.name);
}
std::string TextOf(Scenario value)
{
    return std::string(kScenarioKeys[Index(value)]);
}
std::string TextOf(ShapePair value)
{
    return std::string(kShapePairKeys[Index(value)]);
}
std::string TextOf(SceneKey value)
{
    return std::string(kSceneKeys[Index(value)]);
}

template <auto member> constexpr SimField Field(std::string_view name)
{
    return {name, [](const Simulation& sim) { return TextOf(sim.state.*member); }};
}

constexpr SimField kFields[] = {
    Field<&SimState::ARGP>("ARGP"),
    Field<&SimState::AngRate>("AngRate"),
    Field<&SimState::ApoAlt>("ApoAlt"),
    Field<&SimState::ArgpDeg>("ArgpDeg"),
    Field<&SimState::CurPic>("CurPic"),
    Field<&SimState::CurrentDemo>("CurrentDemo"),
    Field<&SimState::Ecc>("Ecc"),
    Field<&SimState::EclipseSec>("EclipseSec"),
    Field<&SimState::Focus>("Focus"),
    Field<&SimState::FocusPx>("FocusPx"),
    Field<&SimState::GlobeViewDeg>("GlobeViewDeg"),
    Field<&SimState::GmtOffset>("GmtOffset"),
    Field<&SimState::HelioDeg>("HelioDeg"),
    Field<&SimState::HelioPx>("HelioPx"),
    Field<&SimState::HelioRad>("HelioRad"),
    Field<&SimState::HelpFile>("HelpFile"),
    Field<&SimState::HelpStep1>("HelpStep1"),
    Field<&SimState::HelpStep2>("HelpStep2"),
    Field<&SimState::Incl>("Incl"),
    Field<&SimState::KineticEnergy>("KineticEnergy"),
    Field<&SimState::KmScale>("KmScale"),
    Field<&SimState::OrbitMode>("OrbitMode"),
    Field<&SimState::PeriAlt>("PeriAlt"),
    Field<&SimState::PeriodHours>("PeriodHours"),
    Field<&SimState::PeriodSec>("PeriodSec"),
    Field<&SimState::Pi>("Pi"),
    Field<&SimState::PlanetDark>("PlanetDark"),
    Field<&SimState::PlanetDay>("PlanetDay"),
    Field<&SimState::PlanetLight>("PlanetLight"),
    Field<&SimState::PlanetMu>("PlanetMu"),
    Field<&SimState::PlanetName>("PlanetName"),
    Field<&SimState::PlanetPx>("PlanetPx"),
    Field<&SimState::PlanetRadius>("PlanetRadius"),
    Field<&SimState::PlanetRotDeg>("PlanetRotDeg"),
    Field<&SimState::PlanetTilt>("PlanetTilt"),
    Field<&SimState::PlanetX>("PlanetX"),
    Field<&SimState::PlanetY>("PlanetY"),
    Field<&SimState::PosLon>("PosLon"),
    Field<&SimState::PosRoll>("PosRoll"),
    Field<&SimState::PotentialEnergy>("PotentialEnergy"),
    Field<&SimState::RAAN>("RAAN"),
    Field<&SimState::RedrawEnabled>("RedrawEnabled"),
    Field<&SimState::RotPerStep>("RotPerStep"),
    Field<&SimState::SMajAxis>("SMajAxis"),
    Field<&SimState::SMajAxisPx>("SMajAxisPx"),
    Field<&SimState::SMinAxis>("SMinAxis"),
    Field<&SimState::SatDeg>("SatDeg"),
    Field<&SimState::SatDir>("SatDir"),
    Field<&SimState::SatLat>("SatLat"),
    Field<&SimState::SatLon>("SatLon"),
    Field<&SimState::SatRA>("SatRA"),
    Field<&SimState::SatVelocity>("SatVelocity"),
    Field<&SimState::SavedOrbitMode>("SavedOrbitMode"),
    Field<&SimState::SavedSatDeg>("SavedSatDeg"),
    Field<&SimState::SecPerDeg>("SecPerDeg"),
    Field<&SimState::ShapeInput>("ShapeInput"),
    Field<&SimState::SolarDays>("SolarDays"),
    Field<&SimState::SunX>("SunX"),
    Field<&SimState::SunY>("SunY"),
    Field<&SimState::TotalEnergy>("TotalEnergy"),
    Field<&SimState::TrueAnomaly>("TrueAnomaly"),
    Field<&SimState::ViewDeg>("ViewDeg"),
    Field<&SimState::ViewRad>("ViewRad"),
    Field<&SimState::Zoom>("Zoom"),
};

static_assert(std::ranges::is_sorted(kFields, {}, &SimField::name));

} // namespace

std::span<const SimField> SimFields()
{
    return kFields;
}

} // namespace selvane::replay
