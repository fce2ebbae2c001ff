// SimState: the one record of the simulation. A value belongs here when a later event, or another
// procedure, reads what this one wrote; what a control shows belongs to the control's own record.
//
// Names ending in Deg are degrees, Rad radians, Px display units, Sec seconds. Distances without
// such an ending are km. A field that nothing has written yet is 0 or empty.
#pragma once

#include "app/control_ids.h"
#include "raster/colour.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace selvane {

// The active scenario: the program's state, and the keys by which it is known.
enum class Scenario { None, ES1, Geo, Moly, ES2, SunSynch, Tutorial };
inline constexpr std::string_view kScenarioKeys[] = {"",    "ES1",      "Geo",     "Moly",
                                                     "ES2", "SunSynch", "Tutorial"};

// The planet travels round the Sun in the middle of the picture: "ES2", "SunSynch".
constexpr bool IsSunCentred(Scenario scenario)
{
    return scenario == Scenario::ES2 || scenario == Scenario::SunSynch;
}

// The satellite flies round a planet in the middle of the picture: all others but a tutorial.
constexpr bool SatelliteFlies(Scenario scenario)
{
    return scenario != Scenario::None && scenario != Scenario::Tutorial && !IsSunCentred(scenario);
}

// The pair of inputs that rules the orbit's shape.
enum class ShapePair { None, Axis, Apsis, E };
inline constexpr std::string_view kShapePairKeys[] = {"", "Axis", "Apsis", "E"};

// The tutorial scene on show.
enum class SceneKey { None, Demo0, Demo1, Demo2, Demo3, Demo31, Demo32 };
inline constexpr std::string_view kSceneKeys[] = {"",      "Demo0",  "Demo1", "Demo2",
                                                  "Demo3", "Demo31", "Demo32"};

struct SimState
{
    // The planet.
    std::string PlanetName;
    double PlanetRadius = 0; // km, mean
    double PlanetMu = 0;     // km^3/s^2, gravitational parameter
    double PlanetTilt = 0;   // degrees, axial tilt
    double PlanetDay = 0;    // hours, length of the day
    Colour PlanetLight;      // day side
    Colour PlanetDark;       // night side
    double PlanetRotDeg = 0; // degrees, present rotation; 360 is legal, below 0 too after Reverse
    double RotPerStep = 0;   // degrees of rotation that belong to one step of the satellite

    // Scale and view.
    double Pi = 0;       // 4 arctan 1; every conversion of angles uses it
    double KmScale = 0;  // display units per km: 50 / PlanetRadius
    double PlanetPx = 0; // display units, the planet's radius on the picture
    double Zoom = 0;     // pixels per display unit, 0.1 to 2
    double ViewDeg = 0;  // tilt of the view; which sign it has depends on who wrote it last
    double ViewRad = 0;
    double GlobeViewDeg = 0;            // minus the value of txtView, as the view bar left it
    PictureId CurPic = PictureId::None; // the picture in use

    // The orbit's elements, derived by DrawOrbit.
    double SMajAxis = 0; // km, semi-major axis
    double SMinAxis = 0; // km, semi-minor axis
    double Focus = 0;    // km from the orbit's centre to its focus
    double Ecc = 0;      // eccentricity; negative when the apsides have changed ends
    double PeriAlt = 0;  // km above the surface
    double ApoAlt = 0;   // km above the surface
    double PeriodSec = 0;
    double PeriodHours = 0;
    double SMajAxisPx = 0;
    double FocusPx = 0;
    double EclipseSec = 0; // time in the shadow per orbit

    // The orbit's place.
    double Incl = 0;    // degrees, against the picture's x-y plane once DrawOrbit has run
    double RAAN = 0;    // degrees, right ascension of the ascending node
    double ArgpDeg = 0; // degrees, value of txtARGP
    double ARGP = 0;    // degrees, value of txtARGP + 90: where the radius is largest
    double PosLon = 0;  // radians, Incl as the next projection of the orbit takes it
    double PosRoll = 0; // radians, RAAN likewise; a tick of the satellite reads both

    // The satellite.
    double SatDeg = 0;          // degrees along the orbit; also the counter of the drawing loops
    double SavedSatDeg = 0;     // SatDeg across a redraw
    int SatDir = 0;             // +1, or -1 after a step back
    double TrueAnomaly = 0;     // degrees
    double SatRA = 0;           // degrees, right ascension
    double SatLat = 0;          // degrees, latitude and declination
    double SatLon = 0;          // degrees, longitude
    double AngRate = 0;         // degrees per second at the present point
    double SecPerDeg = 0;       // its reciprocal
    double SatVelocity = 0;     // km/s
    double PotentialEnergy = 0; // MJ/kg, as the other two
    double KineticEnergy = 0;
    double TotalEnergy = 0;

    // The scene.
    double PlanetX = 0; // display units, the planet's centre on the picture
    double PlanetY = 0;
    double SunX = 0; // display units, the Sun's centre
    double SunY = 0;
    double HelioDeg = 0; // planet's angle on its path round the Sun, 0 to under 360
    double HelioRad = 0;
    double HelioPx = 0; // radius of that path at zoom 1

    // Scenarios, tutorials and what the bars do.
    Scenario OrbitMode = Scenario::None;
    Scenario SavedOrbitMode = Scenario::None; // across one press of Next or Back
    ShapePair ShapeInput = ShapePair::None;
    bool RedrawEnabled = true; // false inside a row of assignments that is to draw once
    int HelpStep1 = 0;         // step of Reference Frames, 20 to 23
    int HelpStep2 = 0;         // step of Time Standards, 31 to 32
    SceneKey CurrentDemo = SceneKey::None;
    std::string HelpFile;       // document of the tutorial step last shown
    double GmtOffset = 0;       // hours from GMT to local time
    std::int16_t SolarDays = 0; // days that the solar-day scene counts

    // Scratch: inputs and outputs of the projections and of the scenes, worth nothing outside
    // the procedure that has just written them.
    double PosRadius = 0, PosLat = 0;
    double GlobeInclDeg = 0, GlobePosLat = 0, GlobePosLon = 0, GlobePosRoll = 0, GlobeViewRad = 0;
    double DemoLatDeg = 0, DemoLonDeg = 0, DemoRollDeg = 0, DemoViewDeg = 0;
    double DemoPosLat = 0, DemoPosLon = 0, DemoPosRoll = 0, DemoViewRad = 0;
    double SurfLonDeg = 0, SurfRollDeg = 0, SurfPosLon = 0, SurfPosRoll = 0;
    double ProjX = 0, ProjY = 0, ProjZ = 0, ProjDist = 0, ProjPlaneDist = 0, ProjPlaneZ = 0;
    double ProjAngle1 = 0, ProjAngle2 = 0;
    double PoleX1 = 0, PoleY1 = 0, PoleX2 = 0, PoleY2 = 0;
};

// Degrees as radians: degrees x Pi / 180. Finite for every finite angle.
double Radians(const SimState& state, double degrees);

} // namespace selvane
