// Fields, labels and buttons of the main window.
import type { Dispatcher } from "./dispatcher";
import { cssOf, make, setAttribute, setPlace, setVisible } from "./elements";
import { kMain } from "./tables";
import type {
  ButtonRecord, ButtonRow, FieldRecord, FieldRow, Glyph, LabelRecord, LabelRow,
} from "./tables";

export class Field {
  readonly element: HTMLInputElement;
  private record: FieldRecord | undefined;

  constructor(row: FieldRow, index: number, dispatcher: Dispatcher) {
    this.element = make("input", { id: row.name, className: "field" }, {
      type: "text", inputmode: "decimal", autocomplete: "off", spellcheck: "false",
    });
    setPlace(this.element, row.place);
    const type = (text: string): void => {
      dispatcher.act(kMain, (program) => program.type(index, text));
      if (this.record) this.show(this.record); // the program may have cut it
    };
    this.element.addEventListener("input", () => type(this.element.value));
    // The browser would join the lines of what is pasted; the program takes the first.
    this.element.addEventListener("paste", (event) => {
      const pasted = event.clipboardData?.getData("text/plain") ?? "";
      if (!/[\x00-\x1f]/.test(pasted)) return;
      event.preventDefault();
      const { value, selectionStart, selectionEnd } = this.element;
      type(value.slice(0, selectionStart ?? 0) + pasted + value.slice(selectionEnd ?? 0));
    });
  }

  // Writing the same text again would lose the caret, the selection and the way back.
  show(record: FieldRecord): void {
    this.record = record;
    const { element } = this;
    if (element.value !== record.text) element.value = record.text;
    setAttribute(element, "aria-invalid", record.fault === "" ? "" : "true");
    setAttribute(element, "title", record.fault);
    setVisible(element, record.visible);
  }
}

export class Label {
  readonly element: HTMLElement;
  private readonly words: HTMLElement;
  private toolTip = "";

  // A label that names a field gives it the focus when it is clicked; a link runs its handler.
  constructor(row: LabelRow, index: number, field: string, dispatcher: Dispatcher) {
    const className = `label ${row.align}`;
    this.words = make("span");
    if (row.link) {
      this.element = make("button", { id: row.name, className: `${className} link` },
                          { type: "button", role: "link" });
      this.element.addEventListener("click", () =>
        dispatcher.act(kMain, (program) => program.run("click_label", index)));
    } else if (field !== "")
      this.element = make("label", { id: row.name, className }, { for: field });
    else this.element = make("div", { id: row.name, className });
    this.element.append(this.words);
    this.applyLook(row);
  }

  show(record: LabelRecord): void {
    if (this.words.textContent !== record.caption) this.words.textContent = record.caption;
    this.toolTip = record.toolTip;
    setAttribute(this.element, "title", record.toolTip);
    setVisible(this.element, record.visible);
  }

  // A text that does not fit is spoken whole.
  private completeToolTip(): void {
    const { words } = this;
    const whole = words.scrollWidth > words.clientWidth ? `${words.textContent ?? ""}\n` : "";
    setAttribute(this.element, "title", whole + this.toolTip);
  }

  private applyLook(row: LabelRow): void {
    const { style } = this.element;
    setPlace(this.element, row.place);
    if (row.align === "left") {
      style.minWidth = style.width;
      style.width = ""; // as the text needs
    }
    if (row.place[3] === 0) style.height = "";
    style.fontSize = `${row.pixels}px`;
    if (row.bold) style.fontWeight = "bold";
    if (row.underline) style.textDecoration = "underline";
    if (row.colour) style.color = cssOf(row.colour);
    this.element.classList.toggle("filled", row.filled);
    if (row.maxWidth === 0) return;
    this.words.className = "elided";
    this.words.style.maxWidth = `${row.maxWidth}px`;
    this.element.addEventListener("pointerenter", () => this.completeToolTip());
  }
}

// In a box of 12 x 18.
const kGlyphs: Readonly<Record<Exclude<Glyph, "">, string>> = {
  back: "M0 0h3v18h-3zM12 0L3 9L12 18z",
  pause: "M0 1h4v16h-4zM8 1h4v16h-4z",
  play: "M0 0L12 9L0 18z",
  forward: "M0 0L9 9L0 18zM9 0h3v18h-3z",
};

function drawGlyph(path: string): SVGElement {
  const svgNames = "http://www.w3.org/2000/svg";
  const picture = document.createElementNS(svgNames, "svg");
  picture.setAttribute("viewBox", "0 0 12 18");
  picture.setAttribute("aria-hidden", "true");
  const shape = document.createElementNS(svgNames, "path");
  shape.setAttribute("d", path);
  picture.append(shape);
  return picture;
}

export class Button {
  readonly element: HTMLButtonElement;

  constructor(row: ButtonRow, index: number, dispatcher: Dispatcher) {
    this.element = make("button", { id: row.name, className: "push", textContent: row.caption },
                        { type: "button" });
    if (row.glyph !== "") this.element.append(drawGlyph(kGlyphs[row.glyph]));
    else if (row.caption === "") this.element.classList.add("blank");
    setPlace(this.element, row.place);
    this.element.addEventListener("click", () =>
      dispatcher.act(kMain, (program) => program.run("click", index)));
  }

  show(record: ButtonRecord): void {
    setVisible(this.element, record.visible);
  }
}
