// Carries the actions of a script out on the page, with the mouse and the keys where a user would.
// What a user could not do is left out.
import type { Page } from "puppeteer-core";

interface Spot {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

const kShortestTrack = 40, kThumb = 26; // pixels

export class Hand {
  constructor(private readonly page: Page) {}

  async do(action: string): Promise<void> {
    const [verb = "", first = "", second = ""] = action.split(" ");
    const typed = action.slice(verb.length + first.length + 2);
    switch (verb) {
      case "scroll": return this.scroll(first, Number(second));
      case "arrow": return this.press("main", first, second === "+" ? ".more" : ".less");
      case "page": return this.pageBeside(first, second === "+");
      case "type": return this.type(first, typed);
      case "click": case "label": return this.press("main", first);
      case "menu": return this.choose(first);
      case "tick": return void (await this.page.evaluate((name) => window.pageTest.tick(name), first));
      case "activate": return this.activate("panel");
      case "guide": return this.inDialog("guide", "frmUserGuide", first, second);
      case "about": return this.inDialog("about", "frmAbout", first, second);
      case "clock": return this.page.evaluate((time) => window.pageTest.setClock(time), first);
      case "docs": return this.page.evaluate((present, name) => {
        if (present) window.pageTest.missing.delete(name);
        else window.pageTest.missing.add(name);
      }, first === "present", action.slice("docs ".length + first.length + 1));
      case "close": return void (await this.page.evaluate(() =>
        window.dispatchEvent(new PageTransitionEvent("pagehide", { persisted: false }))));
      default: throw new Error(`no action: ${action}`);
    }
  }

  // Many ticks in one go.
  async tickAll(timers: readonly string[]): Promise<void> {
    await this.page.evaluate((names) => names.forEach((name) => window.pageTest.tick(name)), timers);
  }

  // Where the control of an active window is, in view; a message that waits is pressed away first.
  private async find(owner: string, id: string, part = ""): Promise<Spot | null> {
    return this.page.evaluate((active, name, selector) => {
      document.querySelector<HTMLElement>("dialog.message button")?.click();
      if (window.pageTest.dump()["window.active"] !== active) return null;
      const dialog = { guide: "frmUserGuide", about: "frmAbout" }[active];
      const control = (dialog && document.getElementById(`${dialog}.${name}`)) ||
        document.getElementById(name);
      const element = selector === "" ? control : control?.parentElement?.querySelector(selector);
      if (!element?.checkVisibility()) return null;
      element.scrollIntoView({ block: "nearest", inline: "nearest" });
      const { x, y, width, height } = element.getBoundingClientRect();
      return { x, y, width, height };
    }, owner, id, part);
  }

  private async clickAt({ x, y, width, height }: Spot): Promise<void> {
    await this.page.mouse.click(x + width / 2, y + height / 2);
  }

  private async press(window: string, id: string, part = ""): Promise<void> {
    const spot = await this.find(window, id, part);
    if (spot) await this.clickAt(spot);
  }

  private async scroll(bar: string, value: number): Promise<void> {
    const track = await this.find("main", bar);
    if (!track) return;
    const [min = 0, max = 0] = await this.page.$eval(`#${bar}`, (range) =>
      [Number((range as HTMLInputElement).min), Number((range as HTMLInputElement).max)]);
    if (value > min && value < max) {
      // A pixel of the groove stands for many values: a mouse reaches few of them.
      await this.page.$eval(`#${bar}`, (range, to) => {
        (range as HTMLInputElement).value = String(to);
        range.dispatchEvent(new Event("change"));
      }, value);
    } else if (Math.max(track.width, track.height) < kShortestTrack) {
      await this.page.focus(`#${bar}`);
      await this.page.keyboard.press(value >= max ? "End" : "Home");
    } else await this.drag(bar, track, value >= max);
  }

  // Takes the thumb beyond an end of the groove and lets it go there.
  private async drag(bar: string, track: Spot, toEnd: boolean): Promise<void> {
    const { x, y } = this.along(track, (await this.thumbStart(bar, track)) + kThumb / 2);
    const far = (toEnd ? 1 : -1) * 2 * Math.max(track.width, track.height);
    const across = track.width > track.height;
    await this.page.mouse.move(x, y);
    await this.page.mouse.down();
    await this.page.mouse.move(Math.max(0, x + (across ? far : 0)),
                               Math.max(0, y + (across ? 0 : far)));
    await this.page.mouse.up();
  }

  private along(track: Spot, place: number): { x: number; y: number } {
    const { x, y, width, height } = track;
    return width > height ? { x: x + place, y: y + height / 2 } : { x: x + width / 2, y: y + place };
  }

  private async thumbStart(bar: string, track: Spot): Promise<number> {
    const share = await this.page.$eval(`#${bar}`, (element) => {
      const { min, max, value } = element as HTMLInputElement;
      return (Number(value) - Number(min)) / (Number(max) - Number(min) || 1);
    });
    return share * (Math.max(track.width, track.height) - kThumb);
  }

  private async pageBeside(bar: string, forward: boolean): Promise<void> {
    const track = await this.find("main", bar);
    if (!track) return;
    const length = Math.max(track.width, track.height), kRoom = 3;
    const start = length < kShortestTrack ? 0 : await this.thumbStart(bar, track);
    const place = forward ? length - 1 : 1;
    if (length >= kShortestTrack && (forward ? start + kThumb + kRoom < length : start > kRoom)) {
      const { x, y } = this.along(track, place);
      await this.page.mouse.click(x, y);
      return;
    }
    await this.page.focus(`#${bar}`); // no room left beside the thumb
    await this.page.keyboard.press(forward ? "PageDown" : "PageUp");
  }

  private async type(field: string, text: string): Promise<void> {
    const spot = await this.find("main", field);
    if (!spot) return;
    await this.clickAt(spot);
    await this.page.keyboard.down("Control");
    await this.page.keyboard.press("a");
    await this.page.keyboard.up("Control");
    await this.page.keyboard.press("Delete");
    if (text.length < 8 && /^[ -~]*$/.test(text)) await this.page.keyboard.type(text);
    else await this.page.keyboard.sendCharacter(text);
  }

  private async choose(item: string): Promise<void> {
    const title = await this.page.evaluate((id) => {
      const menu = document.getElementById(id)?.closest(".menu");
      return menu?.parentElement?.querySelector(".title")?.id ?? "";
    }, item);
    if (title === "" || !(await this.find("main", title))) return;
    await this.press("main", title);
    await this.press("main", item);
  }

  private async inDialog(window: string, dialog: string, verb: string, id: string): Promise<void> {
    if (verb === "activate") return this.activate(`${dialog}.caption`);
    if (verb === "click") return this.press(window, id);
    const close = await this.page.$(`#${dialog} .close`);
    await close?.click();
  }

  // By a click on its title, or on a bare place of the main window.
  private async activate(id: string): Promise<void> {
    const element = await this.page.$(`[id="${id}"]`);
    const box = await element?.boundingBox();
    if (!box) return;
    const place = id === "panel" ? { x: box.x + box.width - 6, y: box.y + box.height - 6 }
                                 : { x: box.x + 60, y: box.y + 10 };
    await this.page.mouse.click(place.x, place.y);
  }

  // A dialog that has come up is drawn aside, off the main window's controls.
  async drawDialogsAside(): Promise<void> {
    await this.page.evaluate(() => {
      for (const dialog of document.querySelectorAll<HTMLElement>(".dialog")) {
        dialog.style.left = "1260px";
        if (dialog.id === "frmAbout") dialog.style.top = "720px";
      }
    });
  }
}
