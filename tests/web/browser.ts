// Chromium without a screen, and the page in it.
import { existsSync } from "node:fs";
import { pathToFileURL } from "node:url";
import puppeteer from "puppeteer-core";
import type { Browser, Page } from "puppeteer-core";
import { instrument } from "./instrument";

export const kBuild = process.env["SELVANE_WEB_BUILD"] ?? "build/web";
export const kPage = `${kBuild}/selvane.html`; // what people open
export const kTestPage = `${kBuild}/selvane_test.html`; // the same with a module that tests can ask
export const kRoom = { width: 1700, height: 1000 }; // for the main window and dialogs beside it

export async function openBrowser(): Promise<Browser> {
  const executablePath = ["/usr/bin/chromium", "/usr/bin/chromium-browser"].find(existsSync);
  if (!executablePath) throw new Error("chromium is missing");
  return puppeteer.launch({
    executablePath,
    // Debian's wrapper and containers: no sandbox of its own, no small shared memory.
    args: ["--no-sandbox", "--disable-dev-shm-usage", "--disable-gpu", "--force-color-profile=srgb"],
  });
}

interface Opened {
  readonly page: Page;
  readonly faults: string[]; // what the page threw, or reported as an error
}

export async function openPage(browser: Browser, file = kPage, scale = 1, size = kRoom):
    Promise<Opened> {
  const page = await browser.newPage();
  const faults: string[] = [];
  page.on("pageerror", (fault) => faults.push(String(fault)));
  page.on("console", (message) => {
    if (message.type() === "error") faults.push(message.text());
  });
  if (file === kTestPage) await page.evaluateOnNewDocument(instrument);
  await page.setViewport({ ...size, deviceScaleFactor: scale });
  await page.goto(pathToFileURL(file).href);
  await page.waitForSelector("#panel, #fault");
  return { page, faults };
}

// With the clock, the timers and the documents in the test's hand.
export async function openTestPage(browser: Browser, scale = 1): Promise<Opened> {
  return openPage(browser, kTestPage, scale);
}
