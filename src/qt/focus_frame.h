// The frame that shows which control has the keyboard, the same on every kind of control.
#pragma once

class QWidget;

namespace selvane {

// To be called at the end of the control's paint event.
void DrawFocusFrame(QWidget& control);

} // namespace selvane
