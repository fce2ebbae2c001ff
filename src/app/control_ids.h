// The names of the controls, pictures and windows. A control's identifier is its name everywhere:
// in the code, in the control table, in the window and in scripts.
#pragma once

#include "app/assertion.h"

#include <cstddef>

namespace selvane {

// Names stand as in the control table, several a line.
// clang-format off

enum class ScrollBarId {
    sclPeri, sclApo, sclPeriE, sclE, sclSMinAxis, sclSMajAxis, sclIncl, sclRot, sclARGP, sclView,
    sclZoom, sclLR, sclUD, sclViewD, sclRange
};
inline constexpr std::size_t kScrollBarCount = 15;

enum class FieldId {
    txtPeri, txtApo, txtPeriE, txtE, txtSMinAxis, txtSMajAxis, txtIncl, txtRot, txtARGP, txtView,
    txtZoom, txtViewD, txtRange
};
inline constexpr std::size_t kFieldCount = 13;

enum class ButtonId {
    btnApsisCalculate, btnECalculate, btnAxisCalculate, btnReverse, btnPause, btnPlay, btnAdvance,
    btnBack2, btnNext2, Command1
};
inline constexpr std::size_t kButtonCount = 10;

// The read-outs lblOutput(0) to lblOutput(16) come first.
enum class LabelId {
    lblOutput0 = 0, lblOutput16 = 16,
    lblPlanet, lblView, lblZoom, lblReturnToTutorial, lblOrbitShape, lblOrbitPosition, Label2,
    lblOrbitalEnergy1, lblPE, lblKE, lblTE, lblPeriapsis, lblApoapsis, lblPeriE, lblE, lblSMin,
    lblSMaj, lblIncl, lblRot, lblARGP, lblViewD, lblRange
};
inline constexpr std::size_t kOutputCount = 17;
inline constexpr std::size_t kLabelCount = kOutputCount + 22;

enum class TimerId { tmrSat, tmrES2, tmrSunSynch, tmrTime };
inline constexpr std::size_t kTimerCount = 4;

enum class MenuId {
    mnFile, mnView, mnViewSatellite, mnOrbitalEnergy, mnMovies, mnES2, mnSunSynch, mnGeo, mnMoly,
    mnTutorials, mnSatelliteTracking, mnTimeStandards, mnPlanet, mnMercury, mnVenus, mnEarth,
    mnMars, mnJupiter, mnHelp, mnUserGuide, mnSeparator, mnAbout
};
inline constexpr std::size_t kMenuCount = 22;

enum class WindowId { Main, UserGuide, About };
inline constexpr std::size_t kWindowCount = 3;

// clang-format on

enum class PictureId { None, picSelvane, picDemo };

// The read-out of that index, 0 to 16.
constexpr LabelId lblOutput(int index)
{
    SELVANE_ASSERT(index >= 0 && index < static_cast<int>(kOutputCount));
    return static_cast<LabelId>(index);
}

using enum ScrollBarId;
using enum FieldId;
using enum ButtonId;
using enum LabelId;
using enum TimerId;
using enum MenuId;

// An identifier's place in its table.
template <typename Id> constexpr std::size_t Index(Id id)
{
    return static_cast<std::size_t>(id);
}

} // namespace selvane
