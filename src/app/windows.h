// The program's windows: which are loaded, and which one is active. Only a change between the
// program's own windows counts; coming back from another application, a menu or a message box does
// not.
#pragma once

#include "app/controls.h"

#include <string>
#include <vector>

namespace selvane {

// frmUserGuide, the reader of the user guide.
struct UserGuideWindow
{
    HelpPane txtHelp;
};

// frmAbout.
struct AboutWindow
{
    std::string caption, lblTitle, lblVersion, lblDisclaimer;
};

struct Windows
{
    std::vector<WindowId> order; // loaded windows, the active one last
    unsigned raises = 0;         // counts requests to bring the active window to the front
    UserGuideWindow frmUserGuide;
    AboutWindow frmAbout;
    bool running = true; // false once the main window has closed
};

bool IsLoaded(const Simulation& sim, WindowId window);
bool IsActive(const Simulation& sim, WindowId window);

// Loads the window if it is not loaded, brings it to the front and makes it the active one.
void ShowWindow(Simulation& sim, WindowId window);

// Makes a loaded window the active one. Its activation runs if another was active before.
void ActivateWindow(Simulation& sim, WindowId window);

// Closes a window and drops what it held. Where it was the active one, the window that was active
// before it is so again and its activation runs. Closing the main window closes the others and ends
// the program.
void CloseWindow(Simulation& sim, WindowId window);

} // namespace selvane
