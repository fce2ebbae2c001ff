// Every story through the page, by mouse and keys.
import assert from "node:assert/strict";
import { readdirSync } from "node:fs";
import { after, before, test } from "node:test";
import type { Browser } from "puppeteer-core";
import { openBrowser, openTestPage } from "./browser";
import { Hand } from "./hand";
import { holds, readStory } from "./story";
import type { StoryLine } from "./story";

const kStories = "tests/scenarios";
let browser: Browser;
before(async () => (browser = await openBrowser()));
after(async () => browser.close());

type Expected = Extract<StoryLine, { key: string }>;

async function play(file: string): Promise<void> {
  const { page, faults } = await openTestPage(browser);
  const hand = new Hand(page);
  const check = async (expected: readonly Expected[]): Promise<void> => {
    const { dump, wrong } = await page.evaluate((keys) => {
      document.querySelector<HTMLElement>("dialog.message button")?.click();
      const all = window.pageTest.dump();
      return {
        dump: Object.fromEntries(keys.map((key) => [key, all[key]])),
        wrong: window.pageTest.disagreement(),
      };
    }, expected.map((line) => line.key));
    assert.equal(wrong, "", `the page shows something else at ${file}:${expected[0]?.number}`);
    for (const line of expected)
      assert.ok(holds(line.kind, line.value, dump[line.key]),
                `${file}:${line.number}: ${line.key}=${line.value}, but is ${dump[line.key]}`);
  };
  const lines = readStory(`${kStories}/${file}`);
  for (let at = 0; at < lines.length;) {
    const from = at;
    while (lines[at] && "key" in lines[at]!) ++at;
    if (at > from) await check(lines.slice(from, at) as Expected[]);
    const actions: string[] = [];
    for (let line = lines[at]; line && "action" in line; line = lines[++at])
      actions.push(line.action);
    for (let next = 0; next < actions.length; ++next) {
      const ticks: string[] = [];
      while (actions[next + ticks.length]?.startsWith("tick "))
        ticks.push(actions[next + ticks.length]!.slice("tick ".length));
      if (ticks.length > 1) {
        await hand.tickAll(ticks);
        next += ticks.length - 1;
      } else await hand.do(actions[next]!);
      if (/^menu mn(UserGuide|About)$/.test(actions[next] ?? "")) await hand.drawDialogsAside();
    }
  }
  assert.deepEqual(faults, []);
  await page.close();
}

for (const file of readdirSync(kStories).filter((name) => name.endsWith(".scn")).sort())
  test(`story ${file}`, async () => play(file));
