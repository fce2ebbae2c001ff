// The page: makes the controls from the control table and shows what the records say.
import { Bar } from "./bars";
import { Button, Field, Label } from "./controls";
import { AboutBox, showMessage, UserGuide } from "./dialogs";
import { Dispatcher, kWindows } from "./dispatcher";
import { cssOf, make, setAttribute, setPlace, setVisible } from "./elements";
import { showFault } from "./fault";
import { MenuBar } from "./menus";
import { Pane } from "./pane";
import { Marker, Picture } from "./pictures";
import type { Program } from "./program";
import { Timers } from "./timers";
import type { ByName, Changes, Request, Spoken, Tables, WindowName } from "./tables";

export class Page {
  private readonly dispatcher: Dispatcher;
  private readonly timers: Timers;
  private readonly menu: MenuBar;
  private readonly pictures: readonly Picture[];
  private readonly marker = new Marker();
  private readonly bars = new Map<string, Bar>();
  private readonly fields = new Map<string, Field>();
  private readonly buttons = new Map<string, Button>();
  private readonly labels = new Map<string, Label>();
  private readonly pane: Pane;
  private readonly ruling = make("div", { className: "frame" });
  private readonly news = make("div", { className: "spoken" }, { "aria-live": "polite" });
  private readonly speakers = new Map<string, HTMLElement>(); // the main window's, by name
  private readonly spoken = new Map<string, Spoken>();
  private guide: UserGuide | undefined;
  private about: AboutBox | undefined;

  constructor(private readonly program: Program, private readonly tables: Tables,
              private readonly icon: string) {
    this.dispatcher = new Dispatcher(program, (changes) => this.show(changes),
                                     (fault) => this.fail(fault));
    const { dispatcher } = this;
    this.timers = new Timers(tables.timers, dispatcher);
    this.menu = new MenuBar(tables.menus, dispatcher);
    this.pictures = tables.pictures.map((row, index) => new Picture(row, index));
    tables.bars.forEach((row, at) => this.bars.set(row.name, new Bar(row, at, dispatcher)));
    tables.fields.forEach((row, at) => this.fields.set(row.name, new Field(row, at, dispatcher)));
    tables.buttons.forEach((row, at) =>
      this.buttons.set(row.name, new Button(row, at, dispatcher)));
    tables.labels.forEach((row, at) => {
      const field = tables.fields.find((each) => each.caption === row.name)?.name ?? "";
      this.labels.set(row.name, new Label(row, at, field, dispatcher));
    });
    this.pane = new Pane("txtHelp", "main", dispatcher);
    setPlace(this.pane.element, tables.helpPane.place);
    this.build();
    this.nameSpeakers();
    this.listen();
    dispatcher.report(() => {});
  }

  private build(): void {
    const panel = make("main", { id: "panel" });
    panel.append(...this.tables.frames.map((row) => {
      const frame = make("div", { id: row.name, className: "frame" });
      setPlace(frame, row.place);
      if (row.fill) frame.style.background = cssOf(row.fill);
      return frame;
    }));
    const [orbit] = this.pictures;
    this.ruling.style.borderColor = cssOf(this.tables.rulingColour);
    panel.append(this.ruling, ...this.pictures.map((picture) => picture.element));
    orbit?.element.append(this.marker.element);
    const placed = new Set<string>();
    const append = (name: string): void => {
      const element = this.elementOf(name);
      if (!element || placed.has(name)) return;
      placed.add(name);
      const parent = name === "lblPlanet" ? orbit?.element : panel;
      parent?.append(element);
    };
    for (const name of this.tables.readingOrder) {
      append(this.tables.bars.find((row) => row.name === name)?.caption ?? "");
      append(name);
    }
    for (const row of this.tables.labels) append(row.name);
    const header = make("header");
    header.append(this.menu.element);
    document.body.append(header, panel, this.news);
  }

  // What a screen reader names: a label says what it shows, unless it is a link.
  private nameSpeakers(): void {
    for (const [name, bar] of this.bars) this.speakers.set(name, bar.range);
    for (const controls of [this.fields, this.buttons])
      for (const [name, { element }] of controls) this.speakers.set(name, element);
    for (const row of this.tables.labels.filter((each) => each.link)) {
      const element = this.elementOf(row.name);
      if (element) this.speakers.set(row.name, element);
    }
    for (const { canvas } of this.pictures) this.speakers.set(canvas.id, canvas);
    this.speakers.set("lblSat", this.marker.element);
    this.speakers.set("txtHelp", this.pane.element);
  }

  private elementOf(name: string): HTMLElement | undefined {
    return name === "txtHelp" ? this.pane.element
      : (this.bars.get(name) ?? this.fields.get(name) ?? this.buttons.get(name) ??
         this.labels.get(name))?.element;
  }

  private listen(): void {
    for (const type of ["pointerdown", "focusin"])
      document.addEventListener(type, (event) => this.activate(event.target as Element), true);
    window.addEventListener("keydown", (event) => {
      if (event.key === "F1")
        this.dispatcher.act("main", (program) =>
          program.run("choose", this.tables.menus.findIndex((row) => row.name === "mnUserGuide")));
      else if (event.key === "F10") this.menu.enter();
      else return;
      event.preventDefault();
    });
    window.addEventListener("pagehide", (event) => {
      if (!event.persisted)
        this.dispatcher.report((program) => program.run("close_window", kWindows.indexOf("main")));
    });
    window.addEventListener("resize", () => this.paint()); // also when the screen's scale changes
  }

  // Whatever the user touches is the active window. The bare page and a message belong to none.
  // A window that is closed behind another one does not come up before.
  private activate(touched: Element): void {
    if (touched.closest?.(".close")) return;
    const windows: readonly [WindowName, Node | undefined][] = [
      ["guide", this.guide?.dialog.element],
      ["about", this.about?.dialog.element],
      ["main", document.getElementById("panel") ?? undefined],
      ["main", this.menu.element],
    ];
    const found = windows.find(([, element]) => element?.contains(touched))?.[0];
    if (found && !this.dispatcher.isActive(found)) this.dispatcher.act(found, () => {});
  }

  private show(changes: Changes): void {
    for (const [name, record] of Object.entries(changes.bars)) this.bars.get(name)?.show(record);
    for (const [name, record] of Object.entries(changes.fields))
      this.fields.get(name)?.show(record);
    for (const [name, record] of Object.entries(changes.labels))
      this.labels.get(name)?.show(record);
    this.showButtons(changes.buttons);
    this.menu.show(changes.menus);
    if (changes.marker) this.marker.show(changes.marker);
    if (changes.pane) this.pane.show(changes.pane);
    this.paint();
    const open = [this.guide, this.about];
    this.showWindows(changes);
    this.speak(changes.spoken, this.guide !== open[0] || this.about !== open[1]);
    const news = changes.guide ? "frmUserGuide.txtHelp" : changes.pane ? "txtHelp" : undefined;
    if (news !== undefined) this.news.textContent = this.spoken.get(news)?.[0] ?? "";
    if (changes.ruling !== undefined) this.frameRuling(changes.ruling);
    changes.requests.forEach((request) => this.carryOut(request));
    this.timers.show(changes.timers);
    if (changes.running === false) this.end();
  }

  private frameRuling(row: number): void {
    const frame = this.tables.rulingFrames[row];
    if (frame) setPlace(this.ruling, frame.place);
    setVisible(this.ruling, frame !== undefined);
  }

  private paint(): void {
    for (const picture of this.pictures) picture.paint(this.program);
  }

  // Play and Pause share one place: the focus stays there when one takes the other's turn.
  private showButtons(visible: ByName<boolean>): void {
    const focused = document.activeElement;
    for (const [name, shown] of Object.entries(visible)) this.buttons.get(name)?.show(shown);
    const play = this.buttons.get("btnPlay")?.element, pause = this.buttons.get("btnPause")?.element;
    if (focused === play && play?.hidden) pause?.focus();
    if (focused === pause && pause?.hidden) play?.focus();
  }

  private showWindows(changes: Changes): void {
    const opened = { guide: changes.guide && !this.guide, about: changes.about && !this.about };
    if (changes.guide) {
      this.guide ??= new UserGuide(this.tables.guide, this.dispatcher);
      this.guide.show(changes.guide);
    }
    if (changes.about) {
      this.about ??= new AboutBox(this.tables.about, this.icon, this.dispatcher);
      this.about.show(changes.about);
    }
    if (changes.guide === null && this.guide) this.guide = void this.guide.dialog.element.remove();
    if (changes.about === null && this.about) this.about = void this.about.dialog.element.remove();
    if (opened.guide || opened.about || changes.raised === undefined) return;
    if (this.dispatcher.isActive("guide")) this.guide?.dialog.bringUp();
    if (this.dispatcher.isActive("about")) this.about?.dialog.bringUp();
  }

  // What is spoken of a window that is not open waits until it is.
  private speak(changed: ByName<Spoken>, justOpened: boolean): void {
    for (const [name, words] of Object.entries(changed)) this.spoken.set(name, words);
    for (const [name, words] of justOpened ? this.spoken : Object.entries(changed)) {
      const element = this.speakerOf(name);
      if (!element) continue;
      setAttribute(element, element instanceof HTMLImageElement ? "alt" : "aria-label", words[0]);
      setAttribute(element, "aria-description", words[1]);
    }
  }

  private speakerOf(name: string): HTMLElement | undefined {
    const [window = "", control] = name.split(".");
    if (control === undefined) return this.speakers.get(name);
    const dialog = window === "frmAbout" ? this.about?.dialog : this.guide?.dialog;
    return dialog?.speakers.get(control);
  }

  private carryOut(request: Request): void {
    if (request.kind === "message") showMessage(request.text, request.title);
    else window.open(request.target, "_blank", "noopener,noreferrer");
  }

  private end(): void {
    this.timers.stopAll();
    const words = "Selvane has ended: load this page again to start it.";
    document.body.replaceChildren(make("p", { id: "ended", textContent: words },
                                       { role: "status" }));
  }

  private fail(fault: unknown): void {
    this.timers.stopAll();
    showFault(fault);
  }
}
