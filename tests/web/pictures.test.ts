// The page's pictures against the window's, pixel by pixel, but for the words and the marker, which
// each shell draws with its own fonts.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after } from "node:test";
import { kTestPage } from "./browser";
import { onPage } from "./on_page";

const kScreenshot = process.env["SELVANE_SCREENSHOT"] ?? "build/release/bin/screenshot";
const kMenuBar = 20; // pixels above the window's controls

const folder = mkdtempSync(join(tmpdir(), "selvane-pictures-"));
after(() => rmSync(folder, { recursive: true }));

function windowsPicture(actions: readonly string[], scale: number): string {
  const script = join(folder, "script"), picture = join(folder, "window.png");
  writeFileSync(script, actions.map((action) => `${action}\n`).join(""));
  execFileSync(kScreenshot, [picture, "--scale", String(scale), "--script", script],
               { env: { ...process.env, QT_QPA_PLATFORM: "offscreen" } });
  return readFileSync(picture).toString("base64");
}

// Runs in the page: what differs between its two pictures and those in the window's.
async function compare(png: string, scale: number, menuBar: number): Promise<string> {
  const letters = Uint8Array.from(atob(png), (letter) => letter.charCodeAt(0));
  const whole = await createImageBitmap(new Blob([letters], { type: "image/png" }),
                                        { colorSpaceConversion: "none" });
  const record = window.pageTest.dump(true);
  const boxOf = (id: string) => document.getElementById(id)!.getBoundingClientRect();
  const wordsOn = (id: string, width: number, height: number): number[][] => {
    const part = (name: string) => Number(record[`${id}.Scale${name}`]);
    return Object.entries(record)
      .filter(([key, call]) => key.startsWith(`${id}.call.`) && call.startsWith("text "))
      .map(([, call]) => {
        const [, x = 0, y = 0] = call.split(" ").map(Number);
        return [((x - part("Left")) / part("Width")) * width - 2,
                ((y - part("Top")) / part("Height")) * height - 2, width === 400 ? 400 : 120, 20];
      });
  };
  for (const id of ["picSelvane", "picDemo"]) {
    const canvas = document.getElementById(id) as HTMLCanvasElement;
    const place = boxOf(id), panel = boxOf("panel"), marker = boxOf("lblSat");
    const covered = [
      ...wordsOn(id, canvas.clientWidth, canvas.clientHeight),
      ...id === "picDemo" ? [] : [[4, 4, 796, 25], [702, 502, 98, 98], // its label, its bars
                                  [marker.x - place.x - 1, marker.y - place.y - 1, 7, 7]],
    ];
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext("2d")!;
    copy.drawImage(whole, (panel.x - place.x) * scale, (panel.y - place.y - menuBar) * scale);
    const [own, other] = [canvas.getContext("2d")!, copy].map((context) => new Uint32Array(
      context.getImageData(0, 0, canvas.width, canvas.height).data.buffer)) as
      [Uint32Array, Uint32Array];
    if (own.filter((pixel) => pixel & 0xffffff).length < 1000) return `${id} is empty`;
    for (const [at, pixel] of own.entries()) {
      if (pixel === other[at]) continue;
      const x = (at % canvas.width) / scale, y = Math.floor(at / canvas.width) / scale;
      if (!covered.some(([l = 0, t = 0, w = 0, h = 0]) =>
        x >= l && x < l + w && y >= t && y < t + h)) return `${id} differs at ${x}, ${y}`;
    }
  }
  return "";
}

// One after another on the same page, so that each is painted over the one before.
const kScenes: Readonly<Record<string, readonly string[]>> = {
  "the default orbit": ["tick tmrSat", "tick tmrSat"],
  "the Earth-Sun orbit": ["menu mnES2", "tick tmrES2"],
  "a Molniya orbit round Mars, zoomed": ["menu mnMars", "menu mnMoly", "scroll sclZoom 18"],
  "reference frames, step 3": ["click btnNext2", "click btnNext2"],
  "solar days": ["menu mnTimeStandards"],
  "the clock": ["click btnNext2", "tick tmrTime"],
};

for (const scale of [1, 1.5, 2])
  onPage(`pictures at ${scale} pixels of the screen for one`, async (page, hand) => {
    const done: string[] = [];
    for (const [scene, actions] of Object.entries(kScenes)) {
      for (const action of actions) await hand.do(action);
      done.push(...actions);
      assert.equal(await page.evaluate(compare, windowsPicture(done, scale), scale, kMenuBar), "",
                   scene);
    }
  }, kTestPage, scale);
