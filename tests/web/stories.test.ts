// Every story through the page, by mouse and keys, beside a core that does the same. What a story
// expects is checked on the core alone.
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { onPage } from "./on_page";

const kStories = "tests/scenarios";

for (const file of readdirSync(kStories).filter((name) => name.endsWith(".scn")).sort())
  onPage(`story ${file}`, async (page, hand) => {
    const lines = readFileSync(`${kStories}/${file}`, "utf8").split("\n");
    for (const [at, line] of lines.entries()) {
      if (line.trim() === "" || /^(#|expect |near |drawn )/.test(line)) continue;
      const [, times = "1", action = line] = /^(\d+) \* (.*)$/.exec(line) ?? [];
      await hand.do(action, Number(times));
      const said = await page.evaluate((done) => window.pageTest.compare(done),
                                       Array<string>(Number(times)).fill(action));
      assert.equal(said, "", `${file}:${at + 1}: ${line}`);
    }
  });
