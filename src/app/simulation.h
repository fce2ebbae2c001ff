// Simulation: everything that the program is while it runs, as one value. A copy of it is a second,
// independent program; two may run on two threads. Handlers and scenarios work on the whole of it;
// what a procedure computes from values alone stands in a kernel beside it.
#pragma once

#include "app/controls.h"
#include "app/picture.h"
#include "app/platform.h"
#include "app/projected_path.h"
#include "app/sim_state.h"
#include "app/windows.h"

#include <vector>

namespace selvane {

// As it stands before the main window is loaded: the records hold what the control table says.
struct Simulation
{
    SimState state;
    Controls controls = InitialControls();
    Windows windows;
    Picture picSelvane{kPicSelvane}, picDemo{kPicDemo};
    std::vector<Request> requests; // what the handlers have asked of the machine, in their order
    LocalTime now;                 // the machine's time; a shell sets it before each event
    OrbitPath orbitPath;           // the one computed last
};

// The picture that CurPic names: the main one where it names none.
inline Picture& CurrentPicture(Simulation& sim)
{
    return sim.state.CurPic == PictureId::picDemo ? sim.picDemo : sim.picSelvane;
}

} // namespace selvane
