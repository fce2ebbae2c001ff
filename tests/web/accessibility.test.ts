// What automatic rules find wrong for assistive technology: nothing, in no state of the page.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import type axe from "axe-core";
import type { SerializedAXNode } from "puppeteer-core";
import { onPage } from "./on_page";

declare global {
  interface Window {
    axe: typeof axe;
  }
}

// One after the other.
const kStates: Readonly<Record<string, readonly string[]>> = {
  "the main view": [],
  "an orbit that is none": ["type txtPeri x", "click btnApsisCalculate"],
  "the Earth-Sun orbit": ["menu mnES2", "tick tmrES2"],
  "the Sun-synchronous orbit": ["menu mnSunSynch", "tick tmrSunSynch"],
  "the geosynchronous orbit": ["menu mnGeo"],
  "the Molniya orbit": ["menu mnMoly"],
  "reference frames, step 2": ["click btnNext2"],
  "reference frames, step 3": ["click btnNext2"],
  "reference frames, step 4": ["click btnNext2"],
  "time standards, step 1": ["menu mnTimeStandards"],
  "time standards, step 2": ["click btnNext2"],
  "the user guide": ["menu mnUserGuide"],
  "the about box": ["activate", "menu mnAbout"],
};

onPage("no rule is broken in any state", async (page, hand) => {
  await page.evaluate(readFileSync(require.resolve("axe-core/axe.min.js"), "utf8"));
  for (const [state, actions] of Object.entries(kStates)) {
    for (const action of actions) await hand.do(action);
    const broken = await page.evaluate(async () =>
      (await window.axe.run(document, { resultTypes: ["violations"] })).violations.map((rule) =>
        `${rule.id}: ${rule.nodes.map((node) => node.html.slice(0, 100)).join(" | ")}`));
    assert.deepEqual(broken, [], state);
  }
});

onPage("controls have the program's names and descriptions", async (page) => {
  const names: string[] = [];
  const walk = (node: SerializedAXNode | null): void => {
    if (node?.name) names.push(`${node.role} ${node.name}`);
    node?.children?.forEach(walk);
  };
  walk(await page.accessibility.snapshot({ interestingOnly: false }));
  for (const name of ["slider Periapsis (km)", "textbox Periapsis (km)", "button Pause",
                      "slider Pan up and down", "menuitem View"])
    assert.ok(names.some((each) => each.startsWith(name)), name);
  assert.match(await page.$eval("#picSelvane", (picture) =>
    picture.getAttribute("aria-description") ?? ""), /Earth/);
});
