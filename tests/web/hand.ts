// Carries the actions of a script out on the page, with the mouse and the keys where a user would.
// What a user could not do is left out.
import type { Page } from "puppeteer-core";

interface Spot {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
  readonly min: number; // of a bar
  readonly max: number;
  readonly value: number;
}

const kDialogs = ["", "frmUserGuide", "frmAbout"]; // by the number of their window
const idOf = (window: number, name: string) => window === 0 ? name : `${kDialogs[window]}.${name}`;
const kShortestTrack = 40, kThumb = 26; // pixels

const lengthOf = ({ width, height }: Spot) => Math.max(width, height);
const thumbStart = (track: Spot) =>
  ((track.value - track.min) / (track.max - track.min || 1)) * (lengthOf(track) - kThumb);
const along = ({ x, y, width, height }: Spot, place: number) =>
  width > height ? { x: x + place, y: y + height / 2 } : { x: x + width / 2, y: y + place };

export class Hand {
  constructor(private readonly page: Page) {}

  // Of a button that is clicked many times the first click is the mouse's.
  async do(action: string, times = 1): Promise<void> {
    const [verb, name = ""] = action.split(" ");
    const inPage = verb === "tick" ? times : verb === "click" ? times - 1 : 0;
    for (let each = inPage; each < times; ++each) await this.doOnce(action);
    if (inPage === 0) return;
    await this.page.evaluate((id, count, ticks) => {
      for (let each = 0; each < count; ++each)
        if (ticks) window.pageTest.tick(id);
        else document.getElementById(id)?.click();
    }, name, inPage, verb === "tick");
  }

  private async doOnce(action: string): Promise<void> {
    const [verb = "", first = "", second = ""] = action.split(" ");
    const rest = action.slice(verb.length + first.length + 2);
    switch (verb) {
      case "scroll": return this.scroll(first, Number(second));
      case "arrow": return this.press(0, first, second === "+" ? ".more" : ".less");
      case "page": return this.pageBeside(first, second === "+");
      case "type": return this.type(first, rest);
      case "click": case "label": return this.press(0, first);
      case "menu": return this.choose(first);
      case "activate": return this.activate("panel");
      case "guide": return this.inDialog(1, first, second);
      case "about": return this.inDialog(2, first, second);
      case "clock": return this.page.evaluate((time) => window.pageTest.setClock(time), first);
      case "docs": return void (await this.page.evaluate((set, name) =>
        window.pageTest.missing[set === "present" ? "delete" : "add"](name), first, rest));
      case "close": return void (await this.page.evaluate(() =>
        window.dispatchEvent(new PageTransitionEvent("pagehide", { persisted: false }))));
      default: throw new Error(`no action: ${action}`);
    }
  }

  // Where the control of an active window is, in view; a message that waits is pressed away first.
  private async find(window: number, name: string, part = ""): Promise<Spot | null> {
    return this.page.evaluate((owner, id, selector) => {
      document.querySelector<HTMLElement>("dialog.message button")?.click();
      if (globalThis.window.pageTest.call("test_active") !== owner) return null;
      const control = document.getElementById(id);
      const element = selector === "" ? control : control?.parentElement?.querySelector(selector);
      if (!element?.checkVisibility()) return null;
      element.scrollIntoView({ block: "nearest", inline: "nearest" });
      const { x, y, width, height } = element.getBoundingClientRect();
      const { min, max, value } = element as HTMLInputElement;
      return { x, y, width, height, min: Number(min), max: Number(max), value: Number(value) };
    }, window, idOf(window, name), part);
  }

  private async press(window: number, name: string, part = ""): Promise<void> {
    const spot = await this.find(window, name, part);
    if (spot) await this.page.mouse.click(spot.x + spot.width / 2, spot.y + spot.height / 2);
  }

  private async scroll(bar: string, value: number): Promise<void> {
    const track = await this.find(0, bar);
    if (!track) return;
    if (value > track.min && value < track.max) {
      // A pixel of the track stands for many values: a mouse reaches few of them.
      await this.page.$eval(`#${bar}`, (range, to) => {
        (range as HTMLInputElement).value = String(to);
        range.dispatchEvent(new Event("change"));
      }, value);
    } else if (lengthOf(track) < kShortestTrack) {
      await this.page.focus(`#${bar}`);
      await this.page.keyboard.press(value >= track.max ? "End" : "Home");
    } else await this.drag(track, value >= track.max);
  }

  // Takes the thumb beyond an end of the track and lets it go there.
  private async drag(track: Spot, toEnd: boolean): Promise<void> {
    const far = 2 * lengthOf(track);
    const from = along(track, thumbStart(track) + kThumb / 2), to = along(track, toEnd ? far : -far);
    await this.page.mouse.move(from.x, from.y);
    await this.page.mouse.down();
    await this.page.mouse.move(Math.max(0, to.x), Math.max(0, to.y));
    await this.page.mouse.up();
  }

  private async pageBeside(bar: string, forward: boolean): Promise<void> {
    const track = await this.find(0, bar);
    if (!track) return;
    const length = lengthOf(track), start = thumbStart(track), kBeside = 3;
    if (length >= kShortestTrack &&
        (forward ? start + kThumb + kBeside < length : start > kBeside)) {
      const { x, y } = along(track, forward ? length - 1 : 1);
      return this.page.mouse.click(x, y);
    }
    await this.page.focus(`#${bar}`); // nothing left beside the thumb
    await this.page.keyboard.press(forward ? "PageDown" : "PageUp");
  }

  private async type(field: string, text: string): Promise<void> {
    const spot = await this.find(0, field);
    if (!spot) return;
    await this.page.mouse.click(spot.x + spot.width / 2, spot.y + spot.height / 2);
    const byKeys = /^[ -~]{1,3}$/.test(text);
    await this.page.$eval(`#${field}`, (input, inserted) => {
      (input as HTMLInputElement).select();
      if (inserted !== null)
        document.execCommand(inserted === "" ? "delete" : "insertText", false, inserted);
    }, byKeys ? null : text);
    if (byKeys) await this.page.keyboard.type(text);
  }

  private async choose(item: string): Promise<void> {
    const title = await this.page.evaluate((id) => document.getElementById(id)?.closest(".menu")
      ?.parentElement?.querySelector(".title")?.id ?? "", item);
    if (title === "" || !(await this.find(0, title))) return;
    await this.press(0, title);
    await this.press(0, item);
    await this.moveDialogsAside();
  }

  // A dialog that has come up is moved off the main window's controls.
  private async moveDialogsAside(): Promise<void> {
    await this.page.evaluate(() => {
      for (const dialog of document.querySelectorAll<HTMLElement>(".dialog")) {
        dialog.style.left = "1260px";
        if (dialog.id === "frmAbout") dialog.style.top = "720px";
      }
    });
  }

  private async inDialog(window: number, verb: string, name: string): Promise<void> {
    if (verb === "activate") return this.activate(idOf(window, "caption"));
    if (verb === "click") return this.press(window, name);
    await (await this.page.$(`#${kDialogs[window]} .close`))?.click();
  }

  // By a click on its title, or on a bare place of the main window.
  private async activate(id: string): Promise<void> {
    const box = await (await this.page.$(`[id="${id}"]`))?.boundingBox();
    if (box && id === "panel")
      await this.page.mouse.click(box.x + box.width - 6, box.y + box.height - 6);
    else if (box) await this.page.mouse.click(box.x + 60, box.y + 10);
  }
}
