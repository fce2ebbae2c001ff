// The user guide and the about box: dialogs that do not block the page, and can be moved by the
// mouse, a finger or the arrow keys on their title.
import type { Dispatcher } from "./dispatcher";
import { kWindows } from "./dispatcher";
import { cssOf, make, setPlace } from "./elements";
import { Pane } from "./pane";
import type { AboutRecord, AboutRow, PaneRecord, Tables, WindowName } from "./tables";

const kKeyStep = 16; // pixels
const kTitleHeight = 26;
const kMargin = 8; // of a dialog on a small screen

class Dialog {
  readonly element: HTMLElement;
  readonly body = make("div", { className: "body" });
  readonly speakers = new Map<string, HTMLElement>(); // its controls, by name
  private readonly title = make("h2", { className: "caption", tabIndex: 0 });
  private held: { x: number; y: number } | undefined;

  constructor(id: string, private readonly window: WindowName,
              private readonly dispatcher: Dispatcher) {
    this.title.id = `${id}.caption`;
    this.element = make("div", { id, className: "dialog" },
                        { role: "dialog", "aria-labelledby": this.title.id });
    const close = make("button", { className: "close" }, { type: "button", "aria-label": "Close" });
    close.addEventListener("mousedown", (event) => event.preventDefault()); // keeps the focus
    close.addEventListener("click", () => this.close());
    const bar = make("div", { className: "titleBar" });
    bar.append(this.title, close);
    this.element.append(bar, this.body);
    this.element.addEventListener("keydown", (event) => {
      if (event.key === "Escape") this.close();
    });
    this.letBeMoved();
  }

  setCaption(caption: string): void {
    if (this.title.textContent !== caption) this.title.textContent = caption;
  }

  // Places it as far as the screen has room.
  open(left: number, top: number, width: number, height: number): void {
    const screen = document.documentElement;
    const wide = Math.min(width, screen.clientWidth - 2 * kMargin);
    const high = Math.min(height + kTitleHeight, screen.clientHeight - 2 * kMargin);
    this.element.style.width = `${wide}px`;
    this.element.style.height = `${high}px`;
    document.body.append(this.element);
    this.moveTo(left, top);
  }

  moveTo(left: number, top: number): void {
    const { clientWidth, clientHeight } = document.documentElement;
    const right = clientWidth - this.element.offsetWidth - kMargin;
    const bottom = clientHeight - this.element.offsetHeight - kMargin;
    this.element.style.left = `${Math.max(kMargin, Math.min(left, right))}px`;
    this.element.style.top = `${Math.max(kMargin, Math.min(top, bottom))}px`;
  }

  // To the front, with the focus, unless that is inside already.
  bringUp(): void {
    if (this.element.contains(document.activeElement)) return;
    document.body.append(this.element);
    this.body.querySelector<HTMLElement>("button")?.focus();
  }

  close(): void {
    this.dispatcher.report((program) =>
      program.run("close_window", kWindows.indexOf(this.window)));
  }

  private letBeMoved(): void {
    const { title, element } = this;
    title.addEventListener("pointerdown", (event) => {
      if (event.button !== 0) return;
      title.setPointerCapture(event.pointerId);
      this.held = { x: event.clientX - element.offsetLeft, y: event.clientY - element.offsetTop };
    });
    title.addEventListener("pointermove", (event) => {
      if (this.held) this.moveTo(event.clientX - this.held.x, event.clientY - this.held.y);
    });
    title.addEventListener("lostpointercapture", () => (this.held = undefined));
    title.addEventListener("keydown", (event) => {
      const [right, down] = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1],
                              ArrowDown: [0, 1] }[event.key] ?? [0, 0];
      if (right === 0 && down === 0) return;
      event.preventDefault();
      this.moveTo(element.offsetLeft + (right ?? 0) * kKeyStep,
                  element.offsetTop + (down ?? 0) * kKeyStep);
    });
  }
}

export class UserGuide {
  readonly dialog: Dialog;
  private readonly pane: Pane;

  // A name that the main window has already stands behind this window's own.
  constructor(table: Tables["guide"], dispatcher: Dispatcher) {
    const idOf = (name: string): string =>
      document.getElementById(name) ? `frmUserGuide.${name}` : name;
    this.dialog = new Dialog("frmUserGuide", "guide", dispatcher);
    this.dialog.setCaption(table.caption);
    this.pane = new Pane(idOf("txtHelp"), "guide", dispatcher);
    this.dialog.speakers.set("txtHelp", this.pane.element);
    table.topics.forEach((row, index) => {
      const link = make("button", {
        id: idOf(row.name), className: "label left link topic", textContent: row.caption,
      }, { type: "button", role: "link" });
      this.dialog.speakers.set(row.name, link);
      setPlace(link, row.place);
      link.addEventListener("click", () =>
        dispatcher.act("guide", (program) => program.run("click_topic", index)));
      this.dialog.body.append(link);
    });
    this.dialog.element.classList.add("sizable");
    this.dialog.body.append(this.pane.element);
    this.dialog.open(...table.place);
    (this.dialog.body.firstElementChild as HTMLElement).focus();
  }

  show(record: PaneRecord): void {
    this.pane.show(record);
  }
}

export class AboutBox {
  readonly dialog: Dialog;

  constructor(table: Tables["about"], icon: string, dispatcher: Dispatcher) {
    this.dialog = new Dialog("frmAbout", "about", dispatcher);
    const isButton = (row: AboutRow): boolean => row.kind === "button";
    for (const buttons of [true, false]) // first in the tab order
      table.controls.forEach((row, index) => {
        if (isButton(row) === buttons) this.add(row, index, icon, dispatcher);
      });
    for (const { place, colour } of table.rules) {
      const rule = make("div", { className: "rule" });
      setPlace(rule, place);
      rule.style.background = cssOf(colour);
      this.dialog.body.append(rule);
    }
    const { clientWidth, clientHeight } = document.documentElement;
    this.dialog.open((clientWidth - table.width) / 2, (clientHeight - table.height) / 3,
                     table.width, table.height);
    this.dialog.body.querySelector("button")?.focus();
  }

  show(record: AboutRecord): void {
    this.dialog.setCaption(record.caption);
    for (const [name, text] of Object.entries(record.texts)) {
      const label = this.dialog.speakers.get(name);
      if (label && label.textContent !== text) label.textContent = text;
    }
  }

  private add(row: AboutRow, index: number, icon: string, dispatcher: Dispatcher): void {
    const element = AboutBox.make(row, icon);
    setPlace(element, row.place);
    if (row.pixels > 0) element.style.fontSize = `${row.pixels}px`;
    if (row.bold) element.style.fontWeight = "bold";
    if (row.kind === "button" || row.kind === "link")
      element.addEventListener("click", () =>
        dispatcher.act("about", (program) => program.run("click_about", index)));
    this.dialog.body.append(element);
    this.dialog.speakers.set(row.name, element);
  }

  private static make(row: AboutRow, icon: string): HTMLElement {
    const id = row.name;
    switch (row.kind) {
      case "icon": return make("img", { id }, { src: icon, alt: "" });
      case "label": return make("div", { id, className: "text", textContent: row.text });
      case "link": return make("button", {
        id, className: "label left link", textContent: row.text,
      }, { type: "button", role: "link" });
      case "button": return make("button", { id, className: "push", textContent: row.text },
                                 { type: "button", accesskey: row.accessKey ?? "" });
    }
  }
}

// A message that waits for its OK; the flight goes on behind it.
export function showMessage(text: string, title: string): void {
  const box = make("dialog", { className: "message" }, { "aria-label": title });
  const ok = make("button", { className: "push", textContent: "OK" }, { type: "button" });
  ok.addEventListener("click", () => box.close());
  box.addEventListener("close", () => box.remove());
  box.append(make("p", { textContent: text }), ok);
  document.body.append(box);
  box.showModal();
}
