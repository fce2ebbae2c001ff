#include "app/windows.h"

#include "app/handlers.h"
#include "app/simulation.h"

#include <algorithm>

namespace selvane {

namespace {

void RunActivation(Simulation& sim)
{
    const Procedure activate = kHandlers.activate[Index(sim.windows.order.back())];
    if (activate) activate(sim);
}

void Drop(Simulation& sim, WindowId window)
{
    std::erase(sim.windows.order, window);
    if (window == WindowId::UserGuide) sim.windows.frmUserGuide = {};
    if (window == WindowId::About) sim.windows.frmAbout = {};
}

} // namespace

bool IsLoaded(const Simulation& sim, WindowId window)
{
    const auto& order = sim.windows.order;
    return std::find(order.begin(), order.end(), window) != order.end();
}

bool IsActive(const Simulation& sim, WindowId window)
{
    return !sim.windows.order.empty() && sim.windows.order.back() == window;
}

void ShowWindow(Simulation& sim, WindowId window)
{
    ++sim.windows.raises;
    if (!IsLoaded(sim, window)) {
        // Loaded beneath the active window; the activation brings it up.
        sim.windows.order.insert(sim.windows.order.begin(), window);
        const Procedure load = kHandlers.load[Index(window)];
        if (load) load(sim);
        if (sim.windows.order.size() == 1) {
            RunActivation(sim);
            return;
        }
    }
    ActivateWindow(sim, window);
}

void ActivateWindow(Simulation& sim, WindowId window)
{
    if (!IsLoaded(sim, window) || IsActive(sim, window)) return;
    std::erase(sim.windows.order, window);
    sim.windows.order.push_back(window);
    RunActivation(sim);
}

void CloseWindow(Simulation& sim, WindowId window)
{
    if (!IsLoaded(sim, window)) return;
    if (window == WindowId::Main) {
        kHandlers.unload[Index(WindowId::Main)](sim);
        Drop(sim, WindowId::Main);
        sim.windows.running = false;
        return;
    }
    const bool wasActive = IsActive(sim, window);
    Drop(sim, window);
    if (wasActive && !sim.windows.order.empty()) RunActivation(sim);
}

} // namespace selvane
