#include "app/planets.h"
#include "app/start_up.h"
#include "demos/earth_sun.h"
#include "demos/prepared_orbits.h"
#include "demos/sun_scene.h"
#include "demos/sun_synchronous.h"
#include "model/read_outs.h"
#include "model/satellite_motion.h"
#include "model/shape_inputs.h"
#include "model/view_inputs.h"
#include "program/program.h"
#include "rich_text/reader.h"
#include "scene/orbit.h"
#include "scene/rotating_globe.h"
#include "tutorials/clock.h"
#include "tutorials/navigator.h"

namespace selvane {

namespace {

void WireBars(Wiring& wiring)
{
    auto& change = wiring.change;
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

void WireButtons(Wiring& wiring)
{
    auto& click = wiring.click;
    click[Index(btnApsisCalculate)] = btnApsisCalculate_Click;
    click[Index(btnECalculate)] = btnECalculate_Click;
    click[Index(btnAxisCalculate)] = btnAxisCalculate_Click;
    click[Index(btnReverse)] = btnReverse_Click;
    click[Index(btnPause)] = btnPause_Click;
    click[Index(btnPlay)] = btnPlay_Click;
    click[Index(btnAdvance)] = btnAdvance_Click;
    click[Index(btnBack2)] = btnBack2_Click;
    click[Index(btnNext2)] = btnNext2_Click;
    wiring.label[Index(lblReturnToTutorial)] = lblReturnToTutorial_Click;
}

void WireMenu(Wiring& wiring)
{
    auto& menu = wiring.menu;
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

void WireTimersAndWindows(Wiring& wiring)
{
    wiring.tick[Index(tmrSat)] = tmrSat_Timer;
    wiring.tick[Index(tmrES2)] = tmrES2_Timer;
    wiring.tick[Index(tmrSunSynch)] = tmrSunSynch_Timer;
    wiring.tick[Index(tmrTime)] = tmrTime_Timer;
    wiring.load[Index(WindowId::Main)] = Form_Load;
    wiring.load[Index(WindowId::About)] = frmAbout::Form_Load;
    wiring.activate[Index(WindowId::Main)] = Form_Activate;
    wiring.activate[Index(WindowId::UserGuide)] = frmUserGuide::Form_Activate;
    wiring.unload = Form_Unload;
}

std::shared_ptr<const RichText> ReadPaneText(const std::string& bytes)
{
    RichTextResult result = ReadRichText(bytes);
    if (!std::holds_alternative<RichText>(result)) return nullptr;
    return std::make_shared<const RichText>(std::get<RichText>(std::move(result)));
}

void TieUpwardCalls(Wiring& wiring)
{
    wiring.RotatingPlanet = RotatingPlanet;
    wiring.DrawOrbit = DrawOrbit;
    wiring.PrintValues = PrintValues;
    wiring.btnPlay_Click = btnPlay_Click;
    wiring.PlanetPosition = PlanetPosition;
    wiring.mnSatelliteTracking_Click = mnSatelliteTracking_Click;
    wiring.readRichText = ReadPaneText;
}

Wiring MakeWiring()
{
    Wiring wiring;
    WireBars(wiring);
    WireButtons(wiring);
    WireMenu(wiring);
    WireTimersAndWindows(wiring);
    TieUpwardCalls(wiring);
    return wiring;
}

} // namespace

const Wiring& TheWiring()
{
    static const Wiring wiring = MakeWiring();
    return wiring;
}

} // namespace selvane
