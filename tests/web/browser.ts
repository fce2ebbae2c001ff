// The browser without a screen, and the page in it.
import { pathToFileURL } from "node:url";
import puppeteer from "puppeteer-core";
import type { Browser, Page } from "puppeteer-core";
import { instrument } from "./instrument";

export const kPage = "build/web/selvane.html"; // what people open
export const kTestPage = "build/web/selvane_test.html"; // the same with a module that tests can ask
export const kViewport = { width: 1700, height: 1000 }; // for the main window and dialogs beside it

export async function openBrowser(): Promise<Browser> {
  if (process.env["SELVANE_BROWSER"] === "firefox")
    return puppeteer.launch({ browser: "firefox", executablePath: "/usr/bin/firefox-esr" });
  return puppeteer.launch({
    executablePath: "/usr/bin/chromium",
    // Debian's wrapper and containers: no sandbox of its own, no small shared memory.
    args: ["--no-sandbox", "--disable-dev-shm-usage", "--disable-gpu", "--force-color-profile=srgb"],
  });
}

export interface Opened {
  readonly page: Page;
  readonly faults: string[]; // what the page threw, or reported as an error
}

// The test page has the clock, the timers and the documents in the test's hand.
export async function openPage(browser: Browser, file = kPage, scale = 1, prepare?: () => void):
    Promise<Opened> {
  const page = await browser.newPage();
  const faults: string[] = [];
  page.on("pageerror", (fault) => faults.push(String(fault)));
  page.on("console", (message) => {
    if (message.type() === "error") faults.push(message.text());
  });
  if (file === kTestPage) await page.evaluateOnNewDocument(instrument);
  if (prepare) await page.evaluateOnNewDocument(prepare);
  await page.setViewport({ ...kViewport, deviceScaleFactor: scale });
  await page.goto(pathToFileURL(file).href);
  await page.waitForSelector("#panel, #fault");
  return { page, faults };
}
