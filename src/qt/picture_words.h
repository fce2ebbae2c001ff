// What the pictures show, in words for those who cannot see them.
#pragma once

#include <string>

namespace selvane {

struct Simulation;

// Which planet, in which scenario, and where the satellite stands.
std::string DescribeMainPicture(const Simulation& sim);

// Which step of which tutorial, or that none is open.
std::string DescribeTutorialPicture(const Simulation& sim);

} // namespace selvane
