// The orbit's place and the view of it: seven bars. The four angle bars write their field and leave
// the satellite where it is; the zoom rewrites the scale of the main picture, whatever
// RedrawEnabled says; the pan bars shift the scale and spring back to 0.
#pragma once

namespace selvane {

struct Simulation;

void sclIncl_Change(Simulation& sim); // stops at 180 and -180
void sclRot_Change(Simulation& sim);  // goes to 0 above 360 and below -360
void sclARGP_Change(Simulation& sim); // goes to 0 above 360 and below -360
void sclView_Change(Simulation& sim); // goes to 0 at 360 and -360
void sclZoom_Change(Simulation& sim); // tenths of a factor
void sclUD_Change(Simulation& sim);   // display units
void sclLR_Change(Simulation& sim);   // display units

} // namespace selvane
