// Simulation: everything that the program is while it runs, without a screen. Handlers and
// scenarios work on the whole of it; what a procedure computes from values alone stands in a
// kernel beside it. One thread at a time works on simulations, as scenes remember their last ones.
#pragma once

#include "app/control_table.h"
#include "app/controls.h"
#include "app/drawing_surface.h"
#include "app/platform.h"
#include "app/sim_state.h"
#include "app/windows.h"

namespace selvane {

using Procedure = void (*)(Simulation&);

// What runs when: the handlers of the controls, and the procedures of higher rooms that a lower
// one starts. Null where a control has no handler.
struct Wiring
{
    std::array<Procedure, kScrollBarCount> change{};
    std::array<Procedure, kButtonCount> click{};
    std::array<Procedure, kMenuCount> menu{};
    std::array<Procedure, kTimerCount> tick{};
    std::array<Procedure, kLabelCount> label{};

    // The moments of the windows' lives.
    std::array<Procedure, kWindowCount> load{};
    std::array<Procedure, kWindowCount> activate{};
    Procedure unload = nullptr; // of the main window

    Procedure RotatingPlanet = nullptr;
    Procedure DrawOrbit = nullptr;
    Procedure PrintValues = nullptr;
    Procedure btnPlay_Click = nullptr;
    Procedure PlanetPosition = nullptr;
    Procedure mnSatelliteTracking_Click = nullptr;

    // The rich text in a document's bytes; null where they hold none.
    std::shared_ptr<const RichText> (*readRichText)(const std::string& bytes) = nullptr;
};

struct Simulation
{
    // The surfaces, the platform and the wiring outlive the simulation.
    Simulation(DrawingSurface& mainPicture, DrawingSurface& tutorialPicture, Platform& machine,
               const Wiring& wires)
        : controls(InitialControls()),
          picSelvane(mainPicture),
          picDemo(tutorialPicture),
          platform(machine),
          wiring(wires)
    {
        picSelvane.ForeColor = kPicSelvane.foreColor;
        picSelvane.FillColor = kPicSelvane.fillColor;
        picDemo.ForeColor = kPicDemo.foreColor;
        picDemo.FillColor = kPicDemo.fillColor;
    }

    SimState state;
    Controls controls;
    Windows windows;
    DrawingSurface& picSelvane;
    DrawingSurface& picDemo;
    Platform& platform;
    const Wiring& wiring;
};

} // namespace selvane
