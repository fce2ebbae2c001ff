// What only a page shows: keys, focus, dragging, typing during ticks, touch, dialogs, timers, faults,
// the content policy.
import assert from "node:assert/strict";
import { createServer } from "node:http";
import { readFileSync, statSync } from "node:fs";
import type { AddressInfo } from "node:net";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import type { Browser, Page } from "puppeteer-core";
import { kPage, kRoom, openBrowser, openPage, openTestPage } from "./browser";
import { Hand } from "./hand";

let browser: Browser;
before(async () => (browser = await openBrowser()));
after(async () => browser.close());

const focused = (page: Page) => page.evaluate(() => document.activeElement?.id ?? "");
const valueOf = (page: Page, id: string) =>
  page.$eval(`[id="${id}"]`, (element) => (element as HTMLInputElement).value);
const dumped = (page: Page, key: string) =>
  page.evaluate((name) => window.pageTest.dump()[name], key);
const tick = (page: Page, timer: string) =>
  page.evaluate((name) => window.pageTest.tick(name), timer);

test("the page is one file of at most 600 KB that asks for nothing", async () => {
  assert.ok(statSync(kPage).size <= 600_000, `${statSync(kPage).size} bytes`);
  const { page, faults } = await openPage(browser);
  const asked: string[] = [];
  page.on("request", (request) => asked.push(request.url()));
  await page.click("#mnHelp");
  await page.click("#mnUserGuide");
  assert.deepEqual(asked.filter((url) => !url.startsWith("data:")), []);
  const blocked = await page.evaluate(async () => {
    const script = document.createElement("script");
    script.textContent = "window.intruded = true";
    document.body.append(script);
    const fetched = await fetch("https://selvane.example.org").then(() => "yes", () => "no");
    return [fetched, "intruded" in window];
  });
  assert.deepEqual(blocked, ["no", false]);
  assert.ok(faults.every((fault) => /Content Security Policy/.test(fault)), faults.join());
  await page.close();
});

test("it runs from a web server too", async () => {
  const server = createServer((_, answer) => {
    answer.setHeader("content-type", "text/html");
    answer.end(readFileSync(kPage));
  }).listen(0, "127.0.0.1");
  const page = await browser.newPage();
  await page.goto(`http://127.0.0.1:${(server.address() as AddressInfo).port}/`);
  await page.waitForSelector("#panel");
  await page.waitForFunction(() =>
    document.getElementById("lblOutput(10)")?.textContent?.includes("="));
  await page.close();
  server.close();
});

test("Tab walks in the reading order; arrows, page keys and Home move a bar", async () => {
  const { page } = await openTestPage(browser);
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
  await page.close();
});

test("the menu bar is walked by keys, and its checks are spoken", async () => {
  const { page } = await openTestPage(browser);
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
  await page.close();
});

test("dialogs open by keys, take the focus, move, and Escape closes them", async () => {
  const { page } = await openTestPage(browser);
  await page.keyboard.press("F1");
  assert.equal(await dumped(page, "window.active"), "guide");
  assert.equal(await focused(page), "lblIntroduction");
  const left = () => page.$eval("#frmUserGuide", (dialog) => (dialog as HTMLElement).offsetLeft);
  const before = await left();
  await page.focus("[id='frmUserGuide.caption']");
  await page.keyboard.press("ArrowLeft");
  assert.ok((await left()) < before);
  await page.click("#lblTerminology");
  assert.equal(await dumped(page, "guide.document"), "Terminology.rtf");
  assert.match(await page.$eval("[aria-live]", (news) => news.textContent ?? ""), /Terminology/i);
  await page.keyboard.press("Escape");
  assert.equal(await page.$("#frmUserGuide"), null);
  assert.equal(await dumped(page, "window.active"), "main");
  await new Hand(page).do("menu mnAbout");
  assert.equal(await focused(page), "cmdOK");
  await page.click("#LblWebsite");
  await page.click("#cmdSysInfo");
  assert.deepEqual(await page.evaluate(() => window.pageTest.opened),
                   ["open https://selvane.example.org",
                    "message System Information Is Unavailable At This Time"]);
  await page.keyboard.press("Enter");
  await page.waitForFunction(() => !document.querySelector("dialog"));
  await page.keyboard.press("Escape");
  assert.equal(await page.$("#frmAbout"), null);
  await page.close();
});

test("a link leads from one document to another in its own pane", async () => {
  const { page } = await openTestPage(browser);
  const link = await page.$("#txtHelp a[data-link]");
  if (link) {
    await link.click();
    assert.notEqual(await dumped(page, "txtHelp.document"), "Help(20).rtf");
  }
  const markup = await page.$eval("#txtHelp", (pane) => pane.querySelectorAll("script, iframe").length);
  assert.equal(markup, 0);
  assert.ok((await page.$eval("#txtHelp", (pane) => pane.textContent ?? "")).length > 500);
  await page.close();
});

test("a tick moves no held thumb, and the handler waits for the release", async () => {
  const { page } = await openTestPage(browser);
  await new Hand(page).do("menu mnES2"); // its ticks write no bar, the reset at its end does
  const box = (await (await page.$("#sclPeri"))!.boundingBox())!;
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
  await page.close();
});

test("arrows go on while they are held, and stop with the release", async () => {
  const { page } = await openTestPage(browser);
  const box = (await (await page.$("#sclIncl + .more"))!.boundingBox())!;
  await page.mouse.move(box.x + 5, box.y + 5);
  await page.mouse.down();
  await page.waitForFunction(() =>
    Number((document.getElementById("sclIncl") as HTMLInputElement).value) >= 63);
  await page.mouse.up();
  const value = await valueOf(page, "sclIncl");
  await new Promise((resolve) => setTimeout(resolve, 150));
  assert.equal(await valueOf(page, "sclIncl"), value);
  await page.close();
});

test("typing keeps its caret during ticks; of pasted lines the first counts", async () => {
  const { page } = await openTestPage(browser);
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
  await page.close();
});

test("a timer waits as long as its record says, and not at all while nobody looks", async () => {
  const { page } = await openTestPage(browser);
  const waits = (timer: string) =>
    page.evaluate((name) => window.pageTest.waits(name) ?? -1, timer);
  await tick(page, "tmrSat");
  assert.equal(await waits("tmrSat"), Number(await dumped(page, "tmrSat.interval")));
  await new Hand(page).do("menu mnTimeStandards");
  await new Hand(page).do("click btnNext2");
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
  await new Hand(page).do("click btnPause");
  assert.equal(await waits("tmrSat"), -1);
  await page.close();
});

test("ticks come no faster than every 50 ms", async () => {
  const { page } = await openPage(browser);
  await page.click("#mnMovies");
  await page.click("#mnES2");
  const ticks = await page.evaluate(async () => {
    let count = 0;
    new MutationObserver(() => ++count).observe(document.getElementById("lblOutput(10)")!,
                                                { characterData: true, childList: true, subtree: true });
    const begin = performance.now();
    await new Promise((resolve) => setTimeout(resolve, 1500));
    return { count, most: Math.ceil((performance.now() - begin) / 50) + 1 };
  });
  assert.ok(ticks.count <= ticks.most && ticks.count > 3, JSON.stringify(ticks));
  await page.close();
});

test("on a phone the page scrolls, can be pinched, and fingers reach the controls", async () => {
  const page = await browser.newPage();
  await page.setViewport({ width: 390, height: 760, deviceScaleFactor: 3, isMobile: true,
                           hasTouch: true });
  await page.goto(pathToFileURL(kPage).href);
  await page.waitForSelector("#panel");
  const scrolls = await page.evaluate(() => document.documentElement.scrollWidth);
  assert.ok(scrolls >= 1243, String(scrolls));
  const viewport = await page.$eval("meta[name=viewport]", (meta) => meta.getAttribute("content"));
  assert.doesNotMatch(viewport ?? "", /user-scalable|maximum-scale/);
  const arrow = (await page.$("#sclPeri + .more"))!;
  await arrow.scrollIntoView();
  const box = (await arrow.boundingBox())!;
  await page.touchscreen.tap(box.x + box.width / 2, box.y - 6); // beside what is drawn
  assert.equal(await valueOf(page, "sclPeri"), "7");
  await page.touchscreen.tap(30, 8);
  await page.evaluate(() => window.scrollTo(0, 0));
  const help = (await (await page.$("#mnHelp"))!.boundingBox())!;
  await page.touchscreen.tap(help.x + 10, help.y + 8);
  const guide = (await (await page.$("#mnUserGuide"))!.boundingBox())!;
  await page.touchscreen.tap(guide.x + 30, guide.y + 8);
  const dialog = (await (await page.$("#frmUserGuide"))!.boundingBox())!;
  assert.ok(dialog.x >= 0 && dialog.x + dialog.width <= 390, JSON.stringify(dialog));
  await page.close();
});

test("pictures have a pixel for each of the screen's, at every scale and when it changes", async () => {
  for (const scale of [1, 1.5, 2, 3]) {
    const { page } = await openPage(browser, kPage, scale);
    const size = () => page.$eval("#picSelvane", (canvas) =>
      [(canvas as HTMLCanvasElement).width, canvas.clientWidth]);
    assert.deepEqual(await size(), [800 * scale, 800]);
    await page.setViewport({ ...kRoom, deviceScaleFactor: 1.25 });
    await page.waitForFunction(() =>
      (document.getElementById("picSelvane") as HTMLCanvasElement).width === 1000);
    await page.close();
  }
});

async function faultOf(prepare: () => void): Promise<string> {
  const page = await browser.newPage();
  await page.evaluateOnNewDocument(prepare);
  await page.goto(pathToFileURL(kPage).href);
  const said = await page.waitForSelector("#fault");
  const words = (await said?.evaluate((fault) => fault.textContent ?? "")) ?? "";
  await page.close();
  return words;
}

test("a browser that cannot unpack a stream starts the program all the same", async () => {
  const page = await browser.newPage();
  await page.evaluateOnNewDocument(() => Reflect.deleteProperty(window, "DecompressionStream"));
  await page.goto(pathToFileURL(kPage).href);
  await page.waitForSelector("#picSelvane");
  await page.close();
});

test("a fault is shown in one sentence", async () => {
  assert.match(await faultOf(() => Reflect.deleteProperty(window, "WebAssembly")),
               /^Selvane needs a browser with WebAssembly: .*\.$/);
  assert.match(await faultOf(() => {
    WebAssembly.instantiate = () => Promise.reject<never>(new RangeError("could not allocate"));
  }), /^Selvane has no memory left: .*\.$/);
  // The program comes up and then meets a trap at a tick.
  assert.match(await faultOf(() => {
    const instantiate = WebAssembly.instantiate.bind(WebAssembly);
    WebAssembly.instantiate = (async (module: BufferSource, imports: WebAssembly.Imports) => {
      const machine = imports["machine"] as Record<string, (to: number) => void>;
      const now = machine["now"];
      let calls = 0;
      return instantiate(module, { ...imports, machine: { ...machine, now: (to: number) => {
        if (++calls > 3) throw new WebAssembly.RuntimeError("unreachable");
        now?.(to);
      } } });
    }) as typeof WebAssembly.instantiate;
  }), /^Selvane has met a fault and has stopped: .*\.$/);
  const { page } = await openTestPage(browser);
  const said = await page.evaluate(() => {
    try {
      window.pageTest.call("input", 0x30000000);
      return "";
    } catch (fault) {
      return (fault as Error).constructor.name === "RuntimeError" ? "a trap" : "shown";
    }
  });
  assert.equal(said, "shown", "the program says itself that no memory is left");
  await page.setJavaScriptEnabled(false);
  await page.goto(pathToFileURL(kPage).href);
  assert.match(await page.$eval("noscript", (words) => words.textContent ?? ""), /needs JavaScript/);
  await page.close();
});

test("2,000 documents one after another leave the memory as it was", async () => {
  const { page } = await openTestPage(browser);
  await page.keyboard.press("F1");
  const session = await page.createCDPSession();
  const load = (count: number) => page.evaluate((times) => {
    const topics = ["lblIntroduction", "lblTerminology", "lblMainDisplay", "lblEnergy"];
    for (let each = 0; each < times; ++each)
      document.getElementById(topics[each % topics.length]!)?.click();
    return window.pageTest.call("test_memory");
  }, count);
  const measure = async () => {
    await session.send("HeapProfiler.collectGarbage");
    const { JSHeapUsedSize = 0, Nodes = 0 } = await page.metrics();
    return { heap: JSHeapUsedSize, nodes: Nodes };
  };
  const first = await load(100), before = await measure();
  const last = await load(2000), after = await measure();
  assert.equal(last, first, "bytes of the module");
  assert.ok(after.heap < before.heap + 2_000_000, `${before.heap} -> ${after.heap}`);
  assert.ok(after.nodes < before.nodes + 2_000, `${before.nodes} -> ${after.nodes}`);
  await page.close();
});
