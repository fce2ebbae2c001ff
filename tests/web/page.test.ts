// What only a page shows: keys, focus, dragging, typing during ticks, touch, dialogs, timers, faults,
// the content policy.
import assert from "node:assert/strict";
import { once } from "node:events";
import { createServer } from "node:http";
import { readFileSync, statSync } from "node:fs";
import type { AddressInfo } from "node:net";
import type { Page } from "puppeteer-core";
import { kPage, kViewport } from "./browser";
import { onPage } from "./on_page";

const focused = (page: Page) => page.evaluate(() => document.activeElement?.id ?? "");
const valueOf = (page: Page, id: string) =>
  page.$eval(`[id="${id}"]`, (element) => (element as HTMLInputElement).value);
const dumped = (page: Page, key: string) =>
  page.evaluate((name) => window.pageTest.dump()[name], key);
const tick = (page: Page, timer: string) =>
  page.evaluate((name) => window.pageTest.tick(name), timer);
const boxOf = async (page: Page, selector: string) =>
  (await (await page.waitForSelector(selector))!.boundingBox())!;

onPage("the page is one file of at most 600 KB that asks for nothing", async (page, _, faults) => {
  assert.ok(statSync(kPage).size <= 600_000, `${statSync(kPage).size} bytes`);
  const asked: (string | undefined)[] = [];
  const server = createServer(({ url }, answer) => {
    asked.push(url);
    answer.setHeader("content-type", "text/html").end(readFileSync(kPage));
  }).listen(0, "127.0.0.1");
  await once(server, "listening");
  await page.goto(`http://127.0.0.1:${(server.address() as AddressInfo).port}/`);
  await page.waitForFunction(() =>
    document.getElementById("lblOutput(10)")?.textContent?.includes("="));
  const blocked = await page.evaluate(async () => {
    const script = document.createElement("script");
    script.textContent = "window.intruded = true";
    document.body.append(script);
    return [await fetch("/").then(() => "yes", () => "no"), "intruded" in window];
  });
  assert.deepEqual(blocked, ["no", false]);
  for (const fault of faults.splice(0)) assert.match(fault, /Content Security Policy/);
  server.close();
  assert.deepEqual(asked, ["/"]);
}, kPage);

onPage("Tab walks in the reading order; arrows, page keys and Home move a bar", async (page) => {
  const order: string[] = [];
  for (let step = 0; step < 60; ++step) {
    await page.keyboard.press("Tab");
    const id = await focused(page);
    if (id === "" || order.includes(id)) break;
    order.push(id);
  }
  assert.deepEqual(order.slice(0, 9), ["mnFile", "sclUD", "sclLR", "Command1", "sclView", "txtView",
                                       "btnReverse", "btnPause", "btnAdvance"]);
  assert.ok(order.includes("txtHelp") && order.includes("sclARGP") && !order.includes("btnPlay"));
  await page.focus("#sclApo");
  for (const [key, value] of [["ArrowRight", "33"], ["ArrowDown", "34"], ["ArrowLeft", "33"],
                              ["PageDown", "43"], ["PageUp", "33"], ["End", "1000"]] as const) {
    await page.keyboard.press(key);
    assert.equal(await valueOf(page, "sclApo"), value, key);
  }
  assert.equal(await valueOf(page, "txtApo"), "100000");
  await page.focus("#btnPause");
  await page.keyboard.press("Space");
  assert.equal(await focused(page), "btnPlay", "the focus stays where Pause was");
});

onPage("the menu bar is walked by keys, and its checks are spoken", async (page) => {
  await page.focus("#txtPeri");
  await page.keyboard.press("F10");
  assert.equal(await focused(page), "mnFile");
  for (const [key, id] of [["ArrowRight", "mnView"], ["d", "mnMovies"], ["ArrowDown", "mnES2"],
                           ["ArrowUp", "mnMoly"], ["g", "mnGeo"], ["ArrowRight",
                           "mnSatelliteTracking"], ["ArrowLeft", "mnES2"]] as const) {
    await page.keyboard.press(key);
    assert.equal(await focused(page), id, key);
  }
  await page.keyboard.press("g");
  await page.keyboard.press("Enter");
  assert.equal(await dumped(page, "sim.OrbitMode"), "Geo");
  assert.equal(await page.$eval("#mnGeo", (item) => item.getAttribute("aria-checked")), "true");
  assert.equal(await focused(page), "txtPeri", "the focus goes back");
  await page.keyboard.press("F10");
  await page.keyboard.press("End");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("Escape");
  assert.equal(await focused(page), "mnHelp");
  assert.equal(await page.$eval("#mnUserGuide", (item) => item.checkVisibility()), false);
});

onPage("dialogs open by keys, take the focus, move, and Escape closes them", async (page, hand) => {
  await page.keyboard.press("F1");
  assert.equal(await dumped(page, "window.active"), "guide");
  assert.equal(await focused(page), "frmUserGuide.lblIntroduction");
  const left = () => page.$eval("#frmUserGuide", (dialog) => (dialog as HTMLElement).offsetLeft);
  const before = await left();
  await page.focus("[id='frmUserGuide.caption']");
  await page.keyboard.press("ArrowLeft");
  assert.ok((await left()) < before);
  await page.click("[id='frmUserGuide.lblTerminology']");
  assert.equal(await dumped(page, "guide.document"), "Terminology.rtf");
  assert.match(await page.$eval("[aria-live]", (news) => news.textContent ?? ""), /Terminology/i);
  await page.keyboard.press("Escape");
  assert.equal(await page.$("#frmUserGuide"), null);
  assert.equal(await dumped(page, "window.active"), "main");
  await page.keyboard.press("F1");
  assert.match(await page.$eval(".dialog .pane", (pane) => pane.textContent ?? ""), /^Welcome/);
  await page.keyboard.press("Escape");
  await hand.do("menu mnAbout");
  assert.equal(await focused(page), "frmAbout.cmdOK");
  await page.click("[id='frmAbout.LblWebsite']");
  await page.click("[id='frmAbout.cmdSysInfo']");
  assert.deepEqual(await page.evaluate(() => window.pageTest.requests),
                   ["open https://selvane.example.org",
                    "message System Information Is Unavailable At This Time"]);
  await page.keyboard.press("Enter");
  await page.waitForFunction(() => !document.querySelector("dialog"));
  await page.keyboard.press("Escape");
  assert.equal(await page.$("#frmAbout"), null);
});

onPage("a link leads from one document to another in its own pane", async (page) => {
  await page.click("#txtHelp a[data-link]");
  assert.equal(await dumped(page, "txtHelp.document"), "Introduction.rtf");
  assert.match(await page.$eval("#txtHelp", (pane) => pane.textContent ?? ""), /^Welcome to Selvane/);
});

onPage("a tick moves no held thumb, and the handler waits for the release", async (page, hand) => {
  await hand.do("menu mnES2"); // its ticks write no bar, the reset at its end does
  const box = await boxOf(page, "#sclPeri");
  await page.mouse.move(box.x + 14, box.y + 8);
  await page.mouse.down();
  await page.mouse.move(box.x + 24, box.y + 8, { steps: 3 });
  const held = await valueOf(page, "sclPeri");
  assert.notEqual(held, "6");
  await tick(page, "tmrES2");
  assert.equal(await valueOf(page, "sclPeri"), held);
  assert.equal(await dumped(page, "sclPeri.value"), "6");
  await page.mouse.up();
  assert.equal(await dumped(page, "sclPeri.value"), held);
});

onPage("arrows go on while they are held, and stop with the release", async (page) => {
  const box = await boxOf(page, "#sclIncl + .more");
  await page.mouse.move(box.x + 5, box.y + 5);
  await page.mouse.down();
  await page.waitForFunction(() =>
    Number((document.getElementById("sclIncl") as HTMLInputElement).value) >= 63);
  await page.mouse.up();
  const value = await valueOf(page, "sclIncl");
  await new Promise((resolve) => setTimeout(resolve, 150));
  assert.equal(await valueOf(page, "sclIncl"), value);
});

onPage("typing keeps its caret during ticks; of pasted lines the first counts", async (page) => {
  await page.click("#txtApo", { count: 3 });
  await page.keyboard.type("12");
  await page.keyboard.press("ArrowLeft");
  await tick(page, "tmrSat");
  await page.keyboard.type("5");
  assert.equal(await valueOf(page, "txtApo"), "152");
  await page.evaluate(() => {
    const field = document.getElementById("txtApo") as HTMLInputElement;
    field.select();
    const clipboardData = new DataTransfer();
    clipboardData.setData("text/plain", "700\n800");
    field.dispatchEvent(new ClipboardEvent("paste", { clipboardData, cancelable: true }));
  });
  assert.equal(await valueOf(page, "txtApo"), "700");
  assert.equal(await dumped(page, "txtApo.text"), "700");
});

onPage("a timer waits as long as its record says, and not at all while nobody looks", async (page, hand) => {
  const waits = (timer: string) =>
    page.evaluate((name) => window.pageTest.waits(name), timer);
  await tick(page, "tmrSat");
  assert.equal(await waits("tmrSat"), Number(await dumped(page, "tmrSat.interval")));
  await hand.do("menu mnTimeStandards");
  await hand.do("click btnNext2");
  await tick(page, "tmrSat");
  const interval = Number(await dumped(page, "tmrSat.interval"));
  const look = (hidden: boolean) => page.evaluate((value) => {
    Object.defineProperty(document, "hidden", { value, configurable: true });
    document.dispatchEvent(new Event("visibilitychange"));
  }, hidden);
  await look(true);
  assert.equal(await waits("tmrSat"), -1);
  assert.ok((await waits("tmrTime")) > 0, "the clock goes on");
  await look(false);
  assert.equal(await waits("tmrSat"), interval, "the whole of it: nothing is caught up");
  await hand.do("click btnPause");
  assert.equal(await waits("tmrSat"), -1);
});

onPage("on a phone the page scrolls, can be pinched, and fingers reach the controls", async (page) => {
  await page.setViewport({ width: 390, height: 760, deviceScaleFactor: 3, isMobile: true,
                           hasTouch: true });
  await page.reload();
  await page.waitForSelector("#panel");
  const scrolls = await page.evaluate(() => document.documentElement.scrollWidth);
  assert.ok(scrolls >= 1243, String(scrolls));
  const viewport = await page.$eval("meta[name=viewport]", (meta) => meta.getAttribute("content"));
  assert.doesNotMatch(viewport ?? "", /user-scalable|maximum-scale/);
  await page.$eval("#sclPeri + .more", (arrow) => arrow.scrollIntoView());
  const arrow = await boxOf(page, "#sclPeri + .more");
  await page.touchscreen.tap(arrow.x + arrow.width / 2, arrow.y - 6); // beside what is drawn
  assert.equal(await valueOf(page, "sclPeri"), "7");
  await page.evaluate(() => window.scrollTo(0, 0));
  const tap = async (selector: string): Promise<void> => {
    const { x, y, width, height } = await boxOf(page, selector);
    assert.ok(x >= 0 && x + width <= 390, `${selector}: ${x} to ${x + width}`);
    await page.touchscreen.tap(x + width / 2, y + height / 2);
  };
  for (const selector of ["#mnHelp", "#mnUserGuide", "#frmUserGuide"]) await tap(selector);
}, kPage);

onPage("pictures have a pixel for each of the screen's when its scale changes", async (page) => {
  for (const scale of [1, 3, 1.25]) {
    await page.setViewport({ ...kViewport, deviceScaleFactor: scale });
    await page.waitForFunction((width) => {
      const canvas = document.getElementById("picSelvane") as HTMLCanvasElement;
      return canvas.width === width && canvas.clientWidth === 800;
    }, {}, 800 * scale);
  }
}, kPage);

onPage("a browser that cannot unpack a stream starts the program all the same", async (page) => {
  assert.ok(await page.$("#picSelvane"));
}, kPage, 1, () => Reflect.deleteProperty(window, "DecompressionStream"));

const kFaults: Readonly<Record<string, () => void>> = {
  "needs a browser with WebAssembly": () => Reflect.deleteProperty(window, "WebAssembly"),
  "has no memory left": () => {
    WebAssembly.instantiate = () => Promise.reject<never>(new RangeError("could not allocate"));
  },
  "has met a fault and has stopped": () => { // at a tick
    setTimeout(() => Reflect.deleteProperty(window, "Date"), 100);
  },
};
for (const [words, prepare] of Object.entries(kFaults))
  onPage(`a fault is shown in one sentence: it ${words}`, async (page, _, faults) => {
    const shown = await page.waitForSelector("#fault");
    assert.match(await shown!.evaluate((fault) => fault.textContent ?? ""),
                 new RegExp(`^Selvane ${words}: .*\\.$`));
    assert.equal(faults.splice(0).length, 1);
  }, kPage, 1, prepare);

onPage("the program says itself that no memory is left, the page that it needs a script", async (page) => {
  const said = await page.evaluate(() => {
    try {
      window.pageTest.call("input", 0x30000000);
      return "";
    } catch (fault) {
      return (fault as Error).constructor.name === "RuntimeError" ? "a trap" : "shown";
    }
  });
  assert.equal(said, "shown");
  await page.setJavaScriptEnabled(false);
  await page.reload();
  assert.match(await page.$eval("noscript", (words) => words.textContent ?? ""), /needs JavaScript/);
});

onPage("500 documents one after another leave the memory as it was", async (page) => {
  await page.keyboard.press("F1");
  const session = await page.createCDPSession();
  const load = (count: number) => page.evaluate((times) => {
    const topics = [...document.querySelectorAll<HTMLElement>(".topic")];
    for (let each = 0; each < times; ++each) topics[each % topics.length]!.click();
    return window.pageTest.call("test_memory");
  }, count);
  const measure = async () => {
    await session.send("HeapProfiler.collectGarbage");
    const { JSHeapUsedSize = 0, Nodes = 0 } = await page.metrics();
    return { heap: JSHeapUsedSize, nodes: Nodes };
  };
  const first = await load(100), before = await measure();
  const last = await load(500), after = await measure();
  assert.ok(last <= first + 65536, "the module's memory, in pages: one for what lies scattered");
  assert.ok(after.heap < before.heap + 500_000, `${before.heap} -> ${after.heap}`);
  assert.ok(after.nodes < before.nodes + 500, `${before.nodes} -> ${after.nodes}`);
});
