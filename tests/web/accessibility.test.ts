// What automatic rules find wrong for assistive technology: nothing, in no state of the page.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";
import type axe from "axe-core";
import type { Browser } from "puppeteer-core";
import { openBrowser, openTestPage } from "./browser";
import { Hand } from "./hand";

declare global {
  interface Window {
    axe: typeof axe;
  }
}

let browser: Browser;
before(async () => (browser = await openBrowser()));
after(async () => browser.close());

const kStates: Readonly<Record<string, readonly string[]>> = {
  "the main view": [],
  "an orbit that is none": ["type txtPeri x", "click btnApsisCalculate"],
  "the Earth-Sun orbit": ["menu mnES2", "tick tmrES2"],
  "the Sun-synchronous orbit": ["menu mnSunSynch", "tick tmrSunSynch"],
  "the geosynchronous orbit": ["menu mnGeo"],
  "the Molniya orbit": ["menu mnMoly"],
  "reference frames, step 2": ["click btnNext2"],
  "reference frames, step 3": ["click btnNext2", "click btnNext2"],
  "reference frames, step 4": ["click btnNext2", "click btnNext2", "click btnNext2"],
  "time standards, step 1": ["menu mnTimeStandards"],
  "time standards, step 2": ["menu mnTimeStandards", "click btnNext2"],
  "the user guide": ["menu mnUserGuide"],
  "the about box": ["menu mnAbout"],
};

test("no rule is broken in any state", async () => {
  const source = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");
  const broken: string[] = [];
  for (const [state, actions] of Object.entries(kStates)) {
    const { page } = await openTestPage(browser);
    const hand = new Hand(page);
    for (const action of actions) await hand.do(action);
    await page.evaluate(source);
    const found = await page.evaluate(async () =>
      (await window.axe.run(document)).violations.map((rule) =>
        `${rule.id}: ${rule.nodes.map((node) => node.html.slice(0, 100)).join(" | ")}`));
    broken.push(...found.map((rule) => `${state}: ${rule}`));
    await page.close();
  }
  assert.deepEqual(broken, []);
});

test("controls have the program's names and descriptions", async () => {
  const { page } = await openTestPage(browser);
  const tree = await page.accessibility.snapshot({ interestingOnly: false });
  const names = new Set<string>();
  const walk = (node: typeof tree): void => {
    if (node?.name) names.add(`${node.role} ${node.name}`);
    node?.children?.forEach((child) => walk(child));
  };
  walk(tree);
  for (const name of ["slider Periapsis (km)", "textbox Periapsis (km)", "button Pause",
                      "slider Pan up and down", "menuitem View"])
    assert.ok([...names].some((each) => each.startsWith(name)), name);
  const words = await page.$eval("#picSelvane", (picture) =>
    picture.getAttribute("aria-description") ?? "");
  assert.match(words, /Earth/);
  await page.close();
});
