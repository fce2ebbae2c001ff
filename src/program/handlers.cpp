#include "app/handlers.h"

#include "demos/prepared_orbits.h"
#include "demos/stepping.h"
#include "demos/sun_scene.h"
#include "documents/about_box.h"
#include "documents/user_guide.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"
#include "model/shape_inputs.h"
#include "model/view_inputs.h"
#include "program/start_up.h"
#include "tutorials/clock.h"
#include "tutorials/navigator.h"

namespace selvane {

namespace {

void mnMercury_Click(Simulation& sim)
{
    ClickPlanet(sim, mnMercury);
}
void mnVenus_Click(Simulation& sim)
{
    ClickPlanet(sim, mnVenus);
}
void mnEarth_Click(Simulation& sim)
{
    ClickPlanet(sim, mnEarth);
}
void mnMars_Click(Simulation& sim)
{
    ClickPlanet(sim, mnMars);
}
void mnJupiter_Click(Simulation& sim)
{
    ClickPlanet(sim, mnJupiter);
}

constexpr void FillBars(Handlers& handlers)
{
    auto& change = handlers.change;
    change[Index(sclPeri)] = sclPeri_Change;
    change[Index(sclApo)] = sclApo_Change;
    change[Index(sclPeriE)] = sclPeriE_Change;
    change[Index(sclE)] = sclE_Change;
    change[Index(sclSMinAxis)] = sclSMinAxis_Change;
    change[Index(sclSMajAxis)] = sclSMajAxis_Change;
    change[Index(sclIncl)] = sclIncl_Change;
    change[Index(sclRot)] = sclRot_Change;
    change[Index(sclARGP)] = sclARGP_Change;
    change[Index(sclView)] = sclView_Change;
    change[Index(sclZoom)] = sclZoom_Change;
    change[Index(sclLR)] = sclLR_Change;
    change[Index(sclUD)] = sclUD_Change;
    change[Index(sclViewD)] = sclViewD_Change;
    change[Index(sclRange)] = sclRange_Change;
}

constexpr void FillButtonsAndLabels(Handlers& handlers)
{
    auto& click = handlers.click;
    click[Index(btnApsisCalculate)] = btnApsisCalculate_Click;
    click[Index(btnECalculate)] = btnECalculate_Click;
    click[Index(btnAxisCalculate)] = btnAxisCalculate_Click;
    click[Index(btnReverse)] = btnReverse_Click;
    click[Index(btnPause)] = btnPause_Click;
    click[Index(btnPlay)] = btnPlay_Click;
    click[Index(btnAdvance)] = btnAdvance_Click;
    click[Index(btnBack2)] = btnBack2_Click;
    click[Index(btnNext2)] = btnNext2_Click;
    handlers.label[Index(lblReturnToTutorial)] = lblReturnToTutorial_Click;
}

constexpr void FillMenu(Handlers& handlers)
{
    auto& menu = handlers.menu;
    menu[Index(mnViewSatellite)] = mnViewSatellite_Click;
    menu[Index(mnOrbitalEnergy)] = mnOrbitalEnergy_Click;
    menu[Index(mnES2)] = mnES2_Click;
    menu[Index(mnSunSynch)] = mnSunSynch_Click;
    menu[Index(mnGeo)] = mnGeo_Click;
    menu[Index(mnMoly)] = mnMoly_Click;
    menu[Index(mnSatelliteTracking)] = mnSatelliteTracking_Click;
    menu[Index(mnTimeStandards)] = mnTimeStandards_Click;
    menu[Index(mnMercury)] = mnMercury_Click;
    menu[Index(mnVenus)] = mnVenus_Click;
    menu[Index(mnEarth)] = mnEarth_Click;
    menu[Index(mnMars)] = mnMars_Click;
    menu[Index(mnJupiter)] = mnJupiter_Click;
    menu[Index(mnUserGuide)] = mnUserGuide_Click;
    menu[Index(mnAbout)] = mnAbout_Click;
}

constexpr void FillTimersAndWindows(Handlers& handlers)
{
    handlers.tick[Index(tmrSat)] = tmrSat_Timer;
    handlers.tick[Index(tmrES2)] = tmrES2_Timer;
    handlers.tick[Index(tmrSunSynch)] = tmrSunSynch_Timer;
    handlers.tick[Index(tmrTime)] = tmrTime_Timer;
    handlers.load[Index(WindowId::Main)] = Form_Load;
    handlers.load[Index(WindowId::About)] = frmAbout::Form_Load;
    handlers.activate[Index(WindowId::Main)] = Form_Activate;
    handlers.activate[Index(WindowId::UserGuide)] = frmUserGuide::Form_Activate;
    handlers.unload[Index(WindowId::Main)] = Form_Unload;
}

constexpr Handlers MakeHandlers()
{
    Handlers handlers;
    FillBars(handlers);
    FillButtonsAndLabels(handlers);
    FillMenu(handlers);
    FillTimersAndWindows(handlers);
    return handlers;
}

} // namespace

constinit const Handlers kHandlers = MakeHandlers();

} // namespace selvane
