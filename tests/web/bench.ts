// How fast the page is, on a machine that does nothing else: node build/web/tests/bench.cjs
import { statSync } from "node:fs";
import type { Page } from "puppeteer-core";
import { kPage, openBrowser, openPage } from "./browser";

const kSeconds = 8;

// Milliseconds from a tick's begin until its pictures are on their canvases, the median.
async function tickToFrame(page: Page): Promise<number> {
  await page.evaluateOnNewDocument(() => {
    const setTimer = window.setTimeout.bind(window), ticks: number[] = [];
    Object.assign(window, { ticks });
    window.setTimeout = ((run: (...words: unknown[]) => void, wait?: number, ...words: unknown[]) =>
      setTimer(() => {
        const begin = performance.now();
        run(...words);
        if (typeof words[0] === "string") ticks.push(performance.now() - begin);
      }, wait)) as typeof window.setTimeout;
  });
  await page.reload();
  await page.waitForSelector("#panel");
  await new Promise((resolve) => setTimeout(resolve, kSeconds * 1000));
  const ticks = await page.evaluate(() => (window as unknown as { ticks: number[] }).ticks);
  return ticks.sort((a, b) => a - b)[Math.floor(ticks.length / 2)] ?? NaN;
}

// The share of a core that the page's own thread takes, styles, layout and painting included.
async function load(page: Page): Promise<number> {
  const session = await page.createCDPSession();
  await session.send("Performance.setTimeDomain", { timeDomain: "threadTicks" });
  await session.send("Performance.enable");
  const busy = async (): Promise<number> => {
    const { metrics } = await session.send("Performance.getMetrics");
    return metrics.find((each) => each.name === "TaskDuration")?.value ?? NaN;
  };
  const before = await busy();
  await new Promise((resolve) => setTimeout(resolve, kSeconds * 1000));
  return ((await busy()) - before) / kSeconds;
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
  const frame = await tickToFrame(page);
  await browser.close();
  const percent = (share: number): string => `${(share * 100).toFixed(2)} % of a core`;
  console.log(`file          ${statSync(kPage).size} bytes (at most 600,000)
start         ${Math.min(...starts).toFixed(0)} ms, median ${starts.sort((a, b) => a - b)[3]?.toFixed(0)} ms (at most 1,000)
default scene ${percent(flying)} (at most 5)
Earth's year  ${percent(year)}
at rest       ${percent(still)} (0)
tick to frame ${frame.toFixed(2)} ms (at most 1)`);
}

void run();
