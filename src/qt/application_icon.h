// The program's icon, in the sizes that windows, task bars and the about box ask for.
#pragma once

#include <QIcon>

namespace selvane {

// Needs the application object.
QIcon ApplicationIcon();

} // namespace selvane
