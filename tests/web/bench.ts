// How fast the page is, on a machine that does nothing else: node build/web/tests/bench.cjs
import { statSync } from "node:fs";
import type { Page } from "puppeteer-core";
import { kPage, openBrowser, openPage } from "./browser";

const kSeconds = 8;

// Seconds of the processor on the page's own thread, styles, layout and painting included.
async function load(page: Page): Promise<{ share: number; perTick: number }> {
  const session = await page.createCDPSession();
  await session.send("Performance.setTimeDomain", { timeDomain: "threadTicks" });
  await session.send("Performance.enable");
  const busy = async (): Promise<number> => {
    const { metrics } = await session.send("Performance.getMetrics");
    return metrics.find((each) => each.name === "TaskDuration")?.value ?? NaN;
  };
  const before = await busy();
  const ticks = await page.evaluate(async (seconds) => {
    let count = 0;
    const watch = new MutationObserver(() => ++count);
    for (const id of ["lblSat", "lblOutput(10)"])
      watch.observe(document.getElementById(id)!, { attributes: id === "lblSat", childList: true,
                                                    subtree: true, characterData: true });
    await new Promise((resolve) => setTimeout(resolve, seconds * 1000));
    return count;
  }, kSeconds);
  const spent = (await busy()) - before;
  return { share: spent / kSeconds, perTick: ticks > 0 ? spent / ticks : 0 };
}

async function run(): Promise<void> {
  const browser = await openBrowser();
  const starts: number[] = [];
  for (let each = 0; each < 7; ++each) {
    const { page } = await openPage(browser);
    starts.push(await page.evaluate(() => Date.now() - performance.timeOrigin));
    await page.close();
  }
  const { page } = await openPage(browser);
  const flying = await load(page);
  await page.click("#mnMovies");
  await page.click("#mnES2");
  const year = await load(page);
  await page.click("#btnPause");
  const still = await load(page);
  await browser.close();
  const percent = (share: number): string => `${(share * 100).toFixed(2)} % of a core`;
  const ms = (seconds: number): string => `${(seconds * 1000).toFixed(2)} ms`;
  console.log(`file          ${statSync(kPage).size} bytes (at most 600,000)
start         ${Math.min(...starts).toFixed(0)} ms, median ${starts.sort((a, b) => a - b)[3]?.toFixed(0)} ms (at most 1,000)
default scene ${percent(flying.share)} (at most 5)
Earth's year  ${percent(year.share)}, ${ms(year.perTick)} from tick to frame (at most 1)
at rest       ${percent(still.share)} (0)`);
}

void run();
