// A scroll bar: a native range between two arrow buttons. The program's handler runs on a click, a
// key or the release of the thumb, never during the drag. Right and Down raise the value.
import type { Dispatcher } from "./dispatcher";
import { make, setPlace, setVisible } from "./elements";
import { kMain } from "./tables";
import type { BarRecord, BarRow } from "./tables";

const kArrow = 14, kThumb = 26, kShortestTrack = 40; // pixels, as in the style
const kFirstRepeat = 400, kNextRepeat = 60; // ms, while a button or the mouse is held
const kWheelNotch = 100; // pixels, as browsers report it

export class Bar {
  readonly element: HTMLElement;
  readonly range: HTMLInputElement;
  private record: BarRecord = { min: 0, max: 0, small: 1, value: 0, visible: true };
  private held: number | undefined; // where the thumb is held, from its start
  private repeat = 0;
  private wheelTurn = 0;

  constructor(
    private readonly row: BarRow,
    private readonly index: number,
    private readonly dispatcher: Dispatcher,
  ) {
    this.range = make("input", { id: row.name }, {
      type: "range", step: "1", "aria-orientation": row.vertical ? "vertical" : "",
    });
    this.element = make("div", { className: row.vertical ? "bar vertical" : "bar" });
    setPlace(this.element, row.place);
    this.element.append(this.arrow(-1), this.range, this.arrow(+1));
    if (!this.hasThumb()) this.element.classList.add("short");
    this.listen();
  }

  show(record: BarRecord): void {
    this.record = record;
    setVisible(this.element, record.visible);
    if (this.held === undefined) this.follow();
  }

  private follow(): void {
    for (const key of ["min", "max", "value"] as const) {
      const text = String(this.record[key]);
      if (this.range[key] !== text) this.range[key] = text;
    }
  }

  private listen(): void {
    const { range } = this;
    range.addEventListener("pointerdown", (event) => this.press(event));
    range.addEventListener("pointermove", (event) => this.drag(event));
    range.addEventListener("pointerup", () => this.release());
    range.addEventListener("lostpointercapture", () => this.letGo());
    for (const native of ["mousedown", "touchstart"])
      range.addEventListener(native, (event) => event.preventDefault(), { passive: false });
    range.addEventListener("keydown", (event) => this.key(event));
    range.addEventListener("wheel", (event) => this.wheel(event), { passive: false });
    // Assistive technology changes a value without keys.
    range.addEventListener("change", () => this.scroll(range.valueAsNumber));
  }

  private arrow(direction: number): HTMLElement {
    const className = direction < 0 ? "arrow less" : "arrow more";
    const button = make("button", { className, tabIndex: -1 },
                        { type: "button", "aria-hidden": "true" });
    button.addEventListener("pointerdown", (event) => {
      if (event.button !== 0) return;
      event.preventDefault();
      this.focus();
      button.setPointerCapture(event.pointerId);
      this.repeatWhileHeld(() => this.run("step_bar", direction));
    });
    button.addEventListener("lostpointercapture", () => this.letGo());
    return button;
  }

  private focus(): void {
    this.range.focus({ preventScroll: true });
  }

  private run(entry: "step_bar" | "page_bar", direction: number): void {
    this.dispatcher.act(kMain, (program) => program.run(entry, this.index, direction));
  }

  private scroll(value: number): void {
    this.dispatcher.act(kMain, (program) => program.run("scroll", this.index, value));
    this.follow(); // where the program refused it
  }

  private hasThumb(): boolean {
    return this.trackLength() >= kShortestTrack;
  }

  private trackLength(): number {
    return Math.max(this.row.place[2], this.row.place[3]) - 2 * kArrow;
  }

  // Pixels of the page from the track's start, whatever the zoom.
  private placeOf(event: PointerEvent): number {
    const box = this.range.getBoundingClientRect();
    const share = this.row.vertical ? (event.clientY - box.top) / box.height
                                    : (event.clientX - box.left) / box.width;
    return share * this.trackLength();
  }

  private thumbStart(): number {
    const { min, max, value } = this.record;
    return max > min ? ((value - min) / (max - min)) * (this.trackLength() - kThumb) : 0;
  }

  private press(event: PointerEvent): void {
    if (event.button !== 0) return;
    event.preventDefault();
    this.focus();
    if (!this.hasThumb()) return;
    this.range.setPointerCapture(event.pointerId);
    const place = this.placeOf(event);
    const onThumb = place - this.thumbStart();
    if (onThumb >= 0 && onThumb <= kThumb) this.held = onThumb;
    else this.pageTowards(place, onThumb < 0 ? -1 : +1);
  }

  private pageTowards(place: number, direction: number): void {
    this.repeatWhileHeld(() => {
      const onThumb = place - this.thumbStart();
      const passed = direction < 0 ? onThumb >= 0 : onThumb <= kThumb;
      if (!passed) this.run("page_bar", direction);
    });
  }

  private drag(event: PointerEvent): void {
    if (this.held === undefined) return;
    const { min, max } = this.record;
    const share = (this.placeOf(event) - this.held) / (this.trackLength() - kThumb);
    const value = Math.round(min + Math.min(1, Math.max(0, share)) * (max - min));
    this.range.value = String(value);
  }

  private release(): void {
    if (this.held === undefined) return;
    this.held = undefined;
    this.scroll(this.range.valueAsNumber);
  }

  private letGo(): void {
    window.clearTimeout(this.repeat);
    this.held = undefined;
    this.follow();
  }

  private repeatWhileHeld(step: () => void): void {
    const again = (wait: number): void => {
      this.repeat = window.setTimeout(() => {
        step();
        again(kNextRepeat);
      }, wait);
    };
    window.clearTimeout(this.repeat);
    step();
    again(kFirstRepeat);
  }

  private key(event: KeyboardEvent): void {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const { min, max } = this.record;
    const actions: Readonly<Record<string, () => void>> = {
      ArrowRight: () => this.run("step_bar", +1),
      ArrowDown: () => this.run("step_bar", +1),
      ArrowLeft: () => this.run("step_bar", -1),
      ArrowUp: () => this.run("step_bar", -1),
      PageDown: () => this.run("page_bar", +1),
      PageUp: () => this.run("page_bar", -1),
      Home: () => this.scroll(min),
      End: () => this.scroll(max),
    };
    const action = actions[event.key];
    if (!action) return;
    event.preventDefault();
    action();
  }

  // Only of the bar with the focus, so that the wheel goes on scrolling the page.
  private wheel(event: WheelEvent): void {
    if (document.activeElement !== this.range || event.ctrlKey) return;
    event.preventDefault();
    this.wheelTurn += Math.abs(event.deltaX) > Math.abs(event.deltaY) ? event.deltaX : event.deltaY;
    const notches = Math.trunc(this.wheelTurn / kWheelNotch);
    this.wheelTurn %= kWheelNotch;
    if (notches !== 0) this.scroll(this.record.value + notches * this.record.small);
  }
}
