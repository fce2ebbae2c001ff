#include "qt/painted_simulation.h"

#include "program/program.h"

namespace selvane {

PaintedSimulation::PaintedSimulation(Platform& platform)
    : picSelvane(kPicSelvane), picDemo(kPicDemo, 0), sim(picSelvane, picDemo, platform, TheWiring())
{
    picSelvane.HoldText();
    Load(sim);
    FirstShowing(sim);
}

} // namespace selvane
