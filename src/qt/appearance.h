// How the program looks, the same on every desktop: light, with the font whose measures the layout
// was made for.
#pragma once

#include "app/control_table.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string_view>

class QApplication;

namespace selvane {

// What must be said before the application object is made, and what after. The second sets numbers
// back to the C locale, in which they are read and written.
void PrepareApplication();
void SetUpApplication(QApplication& application);

// Sizes in points of which 72 are 96 pixels: 9 points are 12 pixels.
QFont FontOf(double points, Weight weight = Weight::Regular, Underline underline = Underline::No);

inline constexpr double kTextPoints = 9; // wherever nothing else is said

inline constexpr QColor kLinkColour{0, 0, 255};
inline constexpr QColor kFocusColour{0, 95, 204};
inline constexpr QColor kFocusFill{158, 200, 255};
inline constexpr QColor kFrameColour{128, 128, 128};
inline constexpr QColor kFaultColour{192, 0, 0};

inline QColor ColourOf(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}
inline QRect RectOf(const Place& place)
{
    return {place.left, place.top, place.width, place.height};
}

// From UTF-8.
QString TextOf(std::string_view text);

} // namespace selvane
