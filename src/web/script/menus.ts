// The menu bar: keys and roles as the ARIA Authoring Practices have them. One title takes part in
// the tab order; arrows walk along the bar and through an open menu, a letter goes to the next item
// that begins with it, Escape closes.
import type { Dispatcher } from "./dispatcher";
import { make, setAttribute } from "./elements";
import { kMain } from "./tables";
import type { ByName, Control, MenuRecord, MenuRow } from "./tables";

interface Title {
  readonly element: HTMLElement;
  readonly list: HTMLElement;
  readonly items: HTMLElement[];
}

// Beyond an end of the list it goes on at the other.
function around<Element>(list: readonly Element[], at: number): Element | undefined {
  return list[(at + list.length) % list.length];
}

export class MenuBar {
  readonly element = make("div", { id: "menuBar" }, { role: "menubar", "aria-label": "Menus" });
  private readonly titles: Title[] = [];
  readonly checks = new Map<string, Control>(); // by the item's name
  private opened: Title | undefined;
  private returnTo: HTMLElement | undefined; // what had the focus before the bar

  constructor(rows: readonly MenuRow[], private readonly dispatcher: Dispatcher) {
    const byRow = new Map<number, Title>();
    rows.forEach((row, index) => {
      const title = byRow.get(row.under);
      if (title) this.addItem(title, row, index);
      else byRow.set(index, this.addTitle(row));
    });
    for (const title of this.titles) {
      if (title.items.length === 0) {
        title.list.remove();
        continue;
      }
      setAttribute(title.element, "aria-haspopup", "menu");
      setAttribute(title.element, "aria-expanded", "false");
    }
    this.element.addEventListener("keydown", (event) => this.key(event));
    document.addEventListener("pointerdown", (event) => {
      if (!this.element.contains(event.target as Node)) this.close();
    }, true);
    this.element.addEventListener("focusout", (event) => {
      const to = event.relatedTarget as Node | null;
      if (to && !this.element.contains(to)) this.close();
    });
    this.rove(this.titles[0]);
  }

  // As F10 does: the bar has the focus, and no menu is open.
  enter(): void {
    this.close();
    this.returnTo = document.activeElement as HTMLElement;
    this.titles[0]?.element.focus();
  }

  private addTitle(row: MenuRow): Title {
    const element = make("div", { id: row.name, className: "title", textContent: row.caption },
                         { role: "menuitem" });
    const list = make("div", { className: "menu" }, { role: "menu", "aria-label": row.caption });
    list.hidden = true;
    const holder = make("div", { className: "holder" }, { role: "none" });
    holder.append(element, list);
    this.element.append(holder);
    const title = { element, list, items: [] };
    this.titles.push(title);
    element.addEventListener("pointerdown", (event) => {
      event.preventDefault();
      if (this.opened === title) this.leave();
      else this.open(title);
    });
    element.addEventListener("click", () => element.focus()); // by assistive technology
    element.addEventListener("pointerenter", () => {
      if (this.opened && this.opened !== title) this.open(title);
    });
    return title;
  }

  private addItem(title: Title, row: MenuRow, index: number): void {
    if (row.caption === "") {
      title.list.append(make("div", { id: row.name, className: "separator" },
                             { role: "separator" }));
      return;
    }
    const element = make("div", {
      id: row.name, className: "item", textContent: row.caption, tabIndex: -1,
    }, row.checkable ? { role: "menuitemcheckbox", "aria-checked": "false" } : { role: "menuitem" });
    element.addEventListener("click", () => this.choose(index));
    element.addEventListener("pointerenter", () => element.focus());
    title.items.push(element);
    title.list.append(element);
    if (row.checkable) this.checks.set(row.name, { show: ({ checked }: MenuRecord) =>
      setAttribute(element, "aria-checked", String(checked)) });
  }

  private choose(index: number): void {
    this.leave();
    this.dispatcher.act(kMain, (program) => program.run("choose", index));
  }

  // One title is reached by Tab.
  private rove(to: Title | undefined): void {
    for (const title of this.titles) title.element.tabIndex = title === to ? 0 : -1;
  }

  // The focus goes to the item, counted from the end where negative; without one, to the title.
  private open(title: Title, item?: number): void {
    this.close();
    const before = document.activeElement as HTMLElement;
    if (!this.element.contains(before)) this.returnTo = before;
    if (title.items.length > 0) {
      this.opened = title;
      title.list.hidden = false;
      title.list.style.left = "0"; // or further left, where the screen ends before the menu
      const beyond = title.list.getBoundingClientRect().right - document.documentElement.clientWidth;
      if (beyond > 0) title.list.style.left = `${-beyond}px`;
      setAttribute(title.element, "aria-expanded", "true");
    }
    this.rove(title);
    ((item === undefined ? undefined : around(title.items, item)) ?? title.element).focus();
  }

  private close(): void {
    if (!this.opened) return;
    this.opened.list.hidden = true;
    setAttribute(this.opened.element, "aria-expanded", "false");
    this.opened = undefined;
  }

  private leave(): void {
    this.close();
    const to = this.returnTo;
    this.returnTo = undefined;
    if (to?.isConnected && to !== document.body) to.focus({ preventScroll: true });
    else (document.activeElement as HTMLElement | null)?.blur();
  }

  private key(event: KeyboardEvent): void {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const focused = document.activeElement as HTMLElement;
    const at = this.titles.findIndex((title) => title.element.parentElement?.contains(focused));
    const title = this.titles[at];
    if (!title) return;
    const item = title.items.indexOf(focused);
    if (item < 0 ? this.keyInBar(event.key, title, at) : this.keyInMenu(event.key, title, at, item))
      event.preventDefault();
  }

  private keyInBar(key: string, title: Title, at: number): boolean {
    return this.act(key, {
      ArrowRight: () => this.walk(at + 1), ArrowLeft: () => this.walk(at - 1),
      Home: () => this.walk(0), End: () => this.walk(-1),
      Enter: () => this.open(title, 0), " ": () => this.open(title, 0),
      ArrowDown: () => this.open(title, 0), ArrowUp: () => this.open(title, -1),
      Escape: () => this.leave(),
    }) || this.goToLetter(key, this.titles.map((each) => each.element), at);
  }

  private keyInMenu(key: string, title: Title, at: number, item: number): boolean {
    const { items } = title;
    return this.act(key, {
      ArrowDown: () => around(items, item + 1)?.focus(),
      ArrowUp: () => around(items, item - 1)?.focus(),
      Home: () => items[0]?.focus(), End: () => around(items, -1)?.focus(),
      ArrowRight: () => this.walk(at + 1, 0), ArrowLeft: () => this.walk(at - 1, 0),
      Enter: () => items[item]?.click(), " ": () => items[item]?.click(),
      Escape: () => (this.close(), title.element.focus()),
    }) || this.goToLetter(key, items, item);
  }

  private act(key: string, actions: ByName<() => void>): boolean {
    actions[key]?.();
    return actions[key] !== undefined;
  }

  // To another title, where an open menu goes on.
  private walk(to: number, item?: number): void {
    const title = around(this.titles, to);
    if (!title) return;
    if (this.opened) this.open(title, item);
    else this.rove(title);
    if (item === undefined) title.element.focus();
  }

  private goToLetter(key: string, among: readonly HTMLElement[], from: number): boolean {
    if (key.length !== 1) return false;
    const letter = key.toLowerCase();
    for (let step = 1; step <= among.length; ++step) {
      const at = (from + step) % among.length;
      const next = among[at];
      if (!next?.textContent?.toLowerCase().startsWith(letter)) continue;
      if (next.className === "title") this.walk(at);
      else next.focus();
      return true;
    }
    return false;
  }
}
