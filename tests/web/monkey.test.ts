// A user who does anything, 10,000 times: the page's program beside one on a scripted machine.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import type { Browser } from "puppeteer-core";
import { openBrowser, openTestPage } from "./browser";
import { loadTestModule } from "./module";

const kActions = 10_000, kRound = 250;
let browser: Browser;
before(async () => (browser = await openBrowser()));
after(async () => browser.close());

// Runs in the page: each action as the event that a control gets, then on the twin; what differs
// after every 25 of them. The mouse and the keys themselves have their part in the stories.
function play(actions: readonly string[]): string {
  const { pageTest } = window;
  const byName = (window: string, name: string): HTMLElement | null =>
    document.getElementById(`${window}.${name}`) ?? document.getElementById(name);
  const open = ["", "frmUserGuide", "frmAbout"];
  const reach = (window: number, name: string): HTMLElement | null => {
    const control = byName(open[window] ?? "", name);
    return pageTest.call("test_active") === window && control?.checkVisibility() ? control : null;
  };
  const key = (range: HTMLElement | null, name: string): void => {
    range?.dispatchEvent(new KeyboardEvent("keydown", { key: name, cancelable: true }));
  };
  const set = (control: HTMLElement | null, value: string, event: string): void => {
    if (!control) return;
    (control as HTMLInputElement).value = value;
    control.dispatchEvent(new Event(event));
  };
  const touch = (element: HTMLElement | null): void => {
    element?.dispatchEvent(new PointerEvent("pointerdown", { bubbles: true }));
  };
  const inDialog = (window: number, verb: string, name: string): void => {
    const dialog = document.getElementById(open[window] ?? "");
    if (verb === "activate") touch(dialog);
    else if (verb === "close") dialog?.querySelector<HTMLElement>(".close")?.click();
    else reach(window, name)?.click();
  };
  const act = (line: string): void => {
    const [verb = "", first = "", second = ""] = line.split(" ");
    const rest = line.slice(verb.length + first.length + 2);
    if (verb === "scroll") set(reach(0, first), second, "change");
    if (verb === "arrow") key(reach(0, first), second === "+" ? "ArrowRight" : "ArrowLeft");
    if (verb === "page") key(reach(0, first), second === "+" ? "PageDown" : "PageUp");
    if (verb === "type") set(reach(0, first), rest, "input");
    if (verb === "click" || verb === "label") reach(0, first)?.click();
    if (verb === "menu" && pageTest.call("test_active") === 0) byName("", first)?.click();
    if (verb === "tick") pageTest.tick(first);
    if (verb === "activate") touch(document.getElementById("panel"));
    if (verb === "guide" || verb === "about") inDialog(verb === "guide" ? 1 : 2, first, second);
    if (verb === "clock") pageTest.setClock(first);
    if (verb === "docs") pageTest.missing[first === "present" ? "delete" : "add"](rest);
    document.querySelector<HTMLElement>("dialog.message button")?.click();
  };
  for (const [at, line] of actions.entries()) {
    act(line);
    pageTest.text("test_twin_do", line);
    if (at % 25 !== 24) continue;
    const differences = pageTest.text("test_twin_differences", "");
    const control = pageTest.disagreement();
    if (differences === "" && control === "") continue;
    return `${control}\n${differences}\nafter\n${actions.slice(at - 24, at + 1).join("\n")}`;
  }
  return "";
}

test(`${kActions} actions of a monkey leave the page and the core the same`, async () => {
  const module = await loadTestModule();
  const actions = module.text("test_monkey", "", 20120728, kActions).split("\n").filter(Boolean);
  assert.equal(actions.length, kActions);
  const { page, faults } = await openTestPage(browser);
  await page.evaluate(() => window.pageTest.call("test_twin_start"));
  for (let at = 0; at < actions.length; at += kRound) {
    const said = await page.evaluate(play, actions.slice(at, at + kRound));
    assert.equal(said, "", `between actions ${at} and ${at + kRound}`);
  }
  assert.deepEqual(faults, []);
  await page.close();
});
