// The page's pictures against the window's, pixel by pixel, but for the words and the marker, which
// each shell draws with its own fonts.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import type { Browser } from "puppeteer-core";
import { openBrowser, openTestPage } from "./browser";
import { Hand } from "./hand";

const kScreenshot = process.env["SELVANE_SCREENSHOT"] ?? "build/release/bin/screenshot";
const kMenuBar = 20; // pixels above the window's controls

let browser: Browser;
const folder = mkdtempSync(join(tmpdir(), "selvane-pictures-"));
before(async () => (browser = await openBrowser()));
after(async () => {
  await browser.close();
  rmSync(folder, { recursive: true });
});

function windowsPicture(actions: readonly string[], scale: number): string {
  const script = join(folder, "script"), picture = join(folder, "window.png");
  writeFileSync(script, actions.map((action) => `${action}\n`).join(""));
  execFileSync(kScreenshot, [picture, "--scale", String(scale), "--script", script],
               { env: { ...process.env, QT_QPA_PLATFORM: "offscreen" } });
  return readFileSync(picture).toString("base64");
}

// Runs in the page: how many pixels of a picture differ from the window's, how many of all have a
// colour, so that an empty picture is no equal one, and where the first one differs.
async function compare(id: string, png: string, scale: number, left: number, top: number,
                       covered: readonly (readonly number[])[]): Promise<[number, number, string]> {
  const bytes = Uint8Array.from(atob(png), (letter) => letter.charCodeAt(0));
  const image = await createImageBitmap(new Blob([bytes], { type: "image/png" }),
                                        { colorSpaceConversion: "none" });
  const canvas = document.getElementById(id) as HTMLCanvasElement;
  const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext("2d");
  copy?.drawImage(image, -left * scale, -top * scale);
  const own = canvas.getContext("2d")?.getImageData(0, 0, canvas.width, canvas.height).data;
  const other = copy?.getImageData(0, 0, canvas.width, canvas.height).data;
  if (!own || !other) return [-1, 0, ""];
  let different = 0, coloured = 0, place = "";
  for (let at = 0; at < own.length; at += 4) {
    const x = ((at / 4) % canvas.width) / scale, y = Math.floor(at / 4 / canvas.width) / scale;
    if (own[at] || own[at + 1] || own[at + 2]) ++coloured;
    if (covered.some(([l = 0, t = 0, w = 0, h = 0]) => x >= l && x < l + w && y >= t && y < t + h))
      continue;
    if (own[at] !== other[at] || own[at + 1] !== other[at + 1] || own[at + 2] !== other[at + 2]) {
      ++different;
      place ||= `${x}, ${y}`;
    }
  }
  return [different, coloured, place];
}

const kScenes: Readonly<Record<string, readonly string[]>> = {
  "the default orbit": ["tick tmrSat", "tick tmrSat"],
  "the Earth-Sun orbit": ["menu mnES2", "tick tmrES2"],
  "a Molniya orbit round Mars, zoomed": ["menu mnMars", "menu mnMoly", "scroll sclZoom 18"],
  "reference frames, step 3": ["click btnNext2", "click btnNext2"],
  "solar days": ["menu mnTimeStandards"],
  "the clock": ["menu mnTimeStandards", "click btnNext2", "tick tmrTime"],
};

for (const scale of [1, 1.5, 2])
  test(`pictures at ${scale} pixels of the screen for one`, async () => {
    for (const [scene, actions] of Object.entries(kScenes)) {
      const png = windowsPicture(actions, scale);
      const { page } = await openTestPage(browser, scale);
      const hand = new Hand(page);
      for (const action of actions) await hand.do(action);
      const dump = await page.evaluate(() => window.pageTest.dump());
      const words = (id: string) => Object.keys(dump)
        .filter((key) => key.startsWith(`${id}.call.`) && dump[key]?.startsWith("text "))
        .map((key) => {
          const [, x = 0, y = 0] = (dump[key] ?? "").split(" ").map(Number);
          const part = (name: string) => Number(dump[`${id}.Scale${name}`]);
          const [width, height] = id === "picDemo" ? [400, 300] : [800, 600];
          return [((x - part("Left")) / part("Width")) * width - 2,
                  ((y - part("Top")) / part("Height")) * height - 2, id === "picDemo" ? 400 : 120, 20];
        });
      const marker = await page.$eval("#lblSat", (element) => {
        const box = element.getBoundingClientRect();
        const picture = document.getElementById("picSelvane")!.getBoundingClientRect();
        return [box.x - picture.x - 1, box.y - picture.y - 1, 7, 7];
      });
      const onMain = [[4, 4, 796, 25], [702, 502, 98, 98], marker]; // its label, its bars
      const pictures = [
        { id: "picSelvane", left: 16, covered: [...onMain, ...words("picSelvane")] },
        { id: "picDemo", left: 824, covered: words("picDemo") },
      ];
      for (const { id, left, covered } of pictures) {
        const [different, coloured, place] =
          await page.evaluate(compare, id, png, scale, left, 8 + kMenuBar, covered);
        assert.equal(different, 0, `${scene}: pixels of ${id}, first at ${place}`);
        assert.ok(coloured > 1000, `${scene}: ${id} is empty`);
      }
      await page.close();
    }
  });
