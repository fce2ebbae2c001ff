// Replay as WebAssembly against the native one: the same bytes for 200 random scripts.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { test } from "node:test";
import { loadTestModule } from "./module";

const kNative = process.env["SELVANE_REPLAY"] ?? "build/release/bin/replay";
const kScripts = 200, kActions = 40;

// The first line that differs, so that a failure says something.
function firstDifference(one: string, other: string): string {
  const lines = other.split("\n");
  const at = one.split("\n").findIndex((line, index) => line !== lines[index]);
  return at < 0 ? "" : `line ${at + 1}: ${one.split("\n")[at]} | ${lines[at]}`;
}

test("replay gives the same dumps as the native one", async () => {
  const module = await loadTestModule();
  const different: string[] = [];
  let bytes = 0;
  for (let seed = 1; seed <= kScripts; ++seed) {
    const script = module.text("test_monkey", "", seed, kActions);
    assert.equal(script.split("\n").length, kActions + 1);
    const here = module.text("test_replay", script);
    const there = execFileSync(kNative, ["-"], { input: script, maxBuffer: 1 << 28 }).toString();
    bytes += there.length;
    if (here !== there) different.push(`seed ${seed}, ${firstDifference(there, here)}`);
  }
  assert.deepEqual(different, []);
  assert.ok(bytes > kScripts * 10_000, "the dumps say too little");
});
