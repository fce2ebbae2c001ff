// The user guide and the about box: dialogs that do not block the page, and can be moved by the
// mouse, a finger or the arrow keys on their title.
import type { Dispatcher } from "./dispatcher";
import { cssOf, make, setPlace } from "./elements";
import { Pane } from "./pane";
import { kAbout, kGuide } from "./tables";
import type { AboutRow, Tables, WindowId } from "./tables";

const kKeyStep = 16; // pixels
const kTitleHeight = 26;
const kMargin = 8; // of a dialog on a small screen

export class Dialog {
  readonly element: HTMLElement;
  readonly body = make("div", { className: "body" });
  private readonly title: HTMLElement;
  private held: { x: number; y: number } | undefined;

  constructor(id: string, caption: string, private readonly window: WindowId,
              private readonly dispatcher: Dispatcher) {
    this.title = make("h2", {
      id: `${id}.caption`, className: "caption", textContent: caption, tabIndex: 0,
    });
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

  // Places it as far as the screen has room, with the focus on its first control.
  open(left: number, top: number, width: number, height: number): void {
    const screen = document.documentElement;
    const wide = Math.min(width, screen.clientWidth - 2 * kMargin);
    const high = Math.min(height + kTitleHeight, screen.clientHeight - 2 * kMargin);
    this.element.style.width = `${wide}px`;
    this.element.style.height = `${high}px`;
    document.body.append(this.element);
    this.moveTo(left, top);
    this.focusFirst();
  }

  private moveTo(left: number, top: number): void {
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
    this.focusFirst();
  }

  private focusFirst(): void {
    this.body.querySelector("button")?.focus();
  }

  private close(): void {
    this.dispatcher.run((program) => program.run("close_window", this.window));
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

export function openGuide(table: Tables["guide"], pane: Pane, dispatcher: Dispatcher): Dialog {
  const dialog = new Dialog("frmUserGuide", table.caption, kGuide, dispatcher);
  dialog.element.classList.add("sizable");
  table.topics.forEach((row, index) => {
    const link = make("button", {
      id: `frmUserGuide.${row.name}`, className: "label left link topic", textContent: row.caption,
    }, { type: "button", role: "link" });
    setPlace(link, row.place);
    link.addEventListener("click", () =>
      dispatcher.act(kGuide, (program) => program.run("click_topic", index)));
    dialog.body.append(link);
  });
  dialog.body.append(pane.element);
  dialog.open(...table.place);
  return dialog;
}

function makeAboutControl(row: AboutRow, icon: string): HTMLElement {
  const id = `frmAbout.${row.name}`, textContent = row.text;
  switch (row.kind) {
    case "icon": return make("img", { id }, { src: icon, alt: "" });
    case "label": return make("div", { id, className: "text", textContent });
    case "link": return make("button", { id, className: "label left link", textContent },
                             { type: "button", role: "link" });
    case "button": return make("button", { id, className: "push", textContent },
                               { type: "button", accesskey: row.accessKey });
  }
}

export function openAbout(table: Tables["about"], icon: string, dispatcher: Dispatcher): Dialog {
  const dialog = new Dialog("frmAbout", "", kAbout, dispatcher);
  const { body } = dialog;
  table.controls.forEach((row, index) => {
    const element = makeAboutControl(row, icon);
    setPlace(element, row.place);
    if (row.pixels > 0) element.style.fontSize = `${row.pixels}px`;
    if (row.bold) element.style.fontWeight = "bold";
    if (element instanceof HTMLButtonElement)
      element.addEventListener("click", () =>
        dispatcher.act(kAbout, (program) => program.run("click_about", index)));
    body.append(element);
  });
  body.prepend(...body.querySelectorAll(".push")); // first in the tab order
  for (const { place, colour } of table.rules) {
    const rule = make("div");
    setPlace(rule, place);
    rule.style.background = cssOf(colour);
    body.append(rule);
  }
  const { clientWidth, clientHeight } = document.documentElement;
  dialog.open((clientWidth - table.width) / 2, (clientHeight - table.height) / 3,
              table.width, table.height);
  return dialog;
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
