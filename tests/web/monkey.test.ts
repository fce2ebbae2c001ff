// A user who does anything, 10,000 times: the page's program beside one on a scripted machine.
import assert from "node:assert/strict";
import { onPage } from "./on_page";

const kActions = 10_000, kRound = 25;

// Runs in the page: each action as the event that a control gets, then on the twin. The mouse and
// the keys themselves have their part in the stories.
function play(actions: readonly string[]): string {
  const { pageTest } = window;
  const dialogs = ["", "frmUserGuide", "frmAbout"];
  const reach = (window: number, name: string): HTMLElement | null => {
    const control = document.getElementById(window === 0 ? name : `${dialogs[window]}.${name}`);
    return pageTest.call("test_active") === window && control?.checkVisibility() ? control : null;
  };
  const key = (bar: string, name: string) =>
    reach(0, bar)?.dispatchEvent(new KeyboardEvent("keydown", { key: name, cancelable: true }));
  const set = (name: string, value: string, event: string): void => {
    const control = reach(0, name) as HTMLInputElement | null;
    if (control) control.value = value;
    control?.dispatchEvent(new Event(event));
  };
  const touch = (element: HTMLElement | null) =>
    element?.dispatchEvent(new PointerEvent("pointerdown", { bubbles: true }));
  const inDialog = (window: number, verb: string, name: string): void => {
    const dialog = document.getElementById(dialogs[window]!);
    if (verb === "activate") touch(dialog);
    else if (verb === "close") dialog?.querySelector<HTMLElement>(".close")?.click();
    else reach(window, name)?.click();
  };
  for (const line of actions) {
    const [verb = "", first = "", second = ""] = line.split(" ");
    const rest = line.slice(verb.length + first.length + 2);
    if (verb === "scroll") set(first, second, "change");
    if (verb === "arrow") key(first, second === "+" ? "ArrowRight" : "ArrowLeft");
    if (verb === "page") key(first, second === "+" ? "PageDown" : "PageUp");
    if (verb === "type") set(first, rest, "input");
    if (verb === "click" || verb === "label") reach(0, first)?.click();
    if (verb === "menu" && pageTest.call("test_active") === 0) document.getElementById(first)?.click();
    if (verb === "tick") pageTest.tick(first);
    if (verb === "activate") touch(document.getElementById("panel"));
    if (verb === "guide" || verb === "about") inDialog(verb === "guide" ? 1 : 2, first, second);
    if (verb === "clock") pageTest.setClock(first);
    if (verb === "docs") pageTest.missing[first === "present" ? "delete" : "add"](rest);
    document.querySelector<HTMLElement>("dialog.message button")?.click();
  }
  return pageTest.compare(actions);
}

onPage(`${kActions} actions of a monkey leave the page and the core the same`, async (page) => {
  const lines = await page.evaluate((count) =>
    window.pageTest.text("test_monkey", "", 20120728, count), kActions);
  const actions = lines.split("\n").filter(Boolean);
  assert.equal(actions.length, kActions);
  for (let at = 0; at < kActions; at += kRound) {
    const round = actions.slice(at, at + kRound);
    assert.equal(await page.evaluate(play, round), "", `after\n${round.join("\n")}`);
  }
});
