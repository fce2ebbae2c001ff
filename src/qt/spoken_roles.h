// What a screen reader is told of the program's own kinds of control.
#pragma once

namespace selvane {

// Links are links and pictures are graphics. More than once does no harm.
void TeachSpokenRoles();

} // namespace selvane
