// The menu bar, made from the control table. Every item has an access key.
#pragma once

#include "app/control_ids.h"

#include <array>

class QAction;
class QMenuBar;

namespace selvane {

class Dispatch;

std::array<QAction*, kMenuCount> BuildMenus(QMenuBar& bar, Dispatch& door);

} // namespace selvane
