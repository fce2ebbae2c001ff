// Replay as WebAssembly against the native one: the same bytes for random scripts and every story.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readdirSync, readFileSync } from "node:fs";
import { onPage } from "./on_page";

const kNative = process.env["SELVANE_REPLAY"] ?? "build/release/bin/replay";
const kScripts = 20, kActions = 200, kStories = "tests/scenarios";

// The first line that differs, so that a failure says something.
function firstDifference(one: string, other: string): string {
  const lines = other.split("\n");
  const at = one.split("\n").findIndex((line, index) => line !== lines[index]);
  return at < 0 ? "" : `line ${at + 1}: ${one.split("\n")[at]} | ${lines[at]}`;
}

// Its actions, each in a line, and of the same one after another no more than 20.
function scriptOf(story: string): string {
  return story.replace(/^(#|expect |near |drawn ).*\n/gm, "").replace(/^(\d+) \* (.*\n)/gm,
    (_, times: string, action: string) => action.repeat(Math.min(Number(times), 20)));
}

onPage("replay gives the same dumps as the native one", async (page) => {
  const scripts = await page.evaluate((count, actions) =>
    Array.from({ length: count }, (_, seed) =>
      window.pageTest.text("test_monkey", "", seed + 1, actions)), kScripts, kActions);
  for (const script of scripts) assert.equal(script.split("\n").length, kActions + 1);
  for (const file of readdirSync(kStories))
    scripts.push(scriptOf(readFileSync(`${kStories}/${file}`, "utf8")));
  let bytes = 0;
  for (const script of scripts) {
    const here = await page.evaluate((text) => window.pageTest.text("test_replay", text), script);
    const there = execFileSync(kNative, ["-"], { input: script, maxBuffer: 1 << 28 }).toString();
    bytes += there.length;
    assert.equal(here === there ? "" : firstDifference(there, here), "", script);
  }
  assert.ok(bytes > scripts.length * 10_000, "the dumps say too little");
});
