// Tests on a page of their own, in the one browser of their file.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import type { Browser, Page } from "puppeteer-core";
import { kTestPage, openBrowser, openPage } from "./browser";
import { Hand } from "./hand";

let browser: Promise<Browser> | undefined;
after(async () => (await browser)?.close());

type Run = (page: Page, hand: Hand, faults: string[]) => Promise<void>;

// A fault that the page reports and the test does not take out of `faults` fails it. `prepare` runs
// in the page before its own script.
export function onPage(name: string, run: Run, file = kTestPage, scale = 1,
                       prepare?: () => void): void {
  test(name, async () => {
    const { page, faults } = await openPage(await (browser ??= openBrowser()), file, scale, prepare);
    await run(page, new Hand(page), faults);
    assert.deepEqual(faults, []);
    await page.close();
  });
}
