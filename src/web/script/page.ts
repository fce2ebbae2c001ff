// The page: makes the controls from the control table and shows what the records say.
import { Bar } from "./bars";
import { Button, Field, Label } from "./controls";
import { openAbout, openGuide, showMessage } from "./dialogs";
import type { Dialog } from "./dialogs";
import { Dispatcher } from "./dispatcher";
import { cssOf, make, setAttribute, setPlace, setVisible } from "./elements";
import { showFault } from "./fault";
import { MenuBar } from "./menus";
import { Pane } from "./pane";
import { Marker, Picture } from "./pictures";
import type { Program } from "./program";
import { Timer } from "./timers";
import { kAbout, kGuide, kMain } from "./tables";
import type { ByName, Changes, Control, Place, Spoken, Tables, WindowId } from "./tables";

export class Page {
  private readonly dispatcher: Dispatcher;
  private readonly menu: MenuBar;
  private readonly pictures: readonly Picture[];
  private readonly timers: readonly Timer[];
  private readonly controls = new Map<string, Control>();
  private readonly panes = new Map<string, Pane>();
  private readonly dialogs = new Map<WindowId, Dialog>();
  private readonly panel = make("main", { id: "panel" });
  private readonly ruling = make("div", { className: "frame" });
  private readonly news = make("div", { className: "spoken" }, { "aria-live": "polite" });

  constructor(private readonly program: Program, private readonly tables: Tables,
              private readonly icon: string) {
    this.dispatcher = new Dispatcher(program, (changes) => this.show(changes),
                                     (fault) => this.fail(fault));
    this.menu = new MenuBar(tables.menus, this.dispatcher);
    for (const [name, check] of this.menu.checks) this.controls.set(name, check);
    this.pictures = tables.pictures.map((row, index) => new Picture(row, index));
    this.timers = tables.timers.map((row, at) => new Timer(row, at, this.dispatcher));
    tables.timers.forEach((row, at) => this.controls.set(row.name, this.timers[at]!));
    this.build();
    this.listen();
    this.dispatcher.run(() => {});
  }

  private build(): void {
    const { panel, tables } = this;
    panel.append(...tables.frames.map((row) => {
      const frame = make("div", { id: row.name, className: "frame" });
      setPlace(frame, row.place);
      if (row.fill) frame.style.background = cssOf(row.fill);
      return frame;
    }));
    this.ruling.style.borderColor = cssOf(tables.rulingColour);
    panel.append(this.ruling, ...this.pictures.map((picture) => picture.element));
    const marker = new Marker();
    this.controls.set("lblSat", marker);
    const orbit = this.pictures[0]?.element;
    orbit?.append(marker.element);
    // A label stands before the bar that it names; what is in no order comes last.
    const elements = this.makeControls();
    const captions = new Map(tables.bars.map((row) => [row.name, row.caption]));
    const order = tables.readingOrder.flatMap((name) => [captions.get(name) ?? "", name]);
    for (const name of new Set([...order, ...elements.keys()]))
      (name === "lblPlanet" ? orbit : panel)?.append(elements.get(name) ?? "");
    const header = make("header");
    header.append(this.menu.element);
    document.body.append(header, panel, this.news);
  }

  // Their elements by name.
  private makeControls(): Map<string, HTMLElement> {
    const { tables, dispatcher } = this;
    const elements = new Map<string, HTMLElement>();
    const add = (name: string, control: Control & { readonly element: HTMLElement }): void => {
      this.controls.set(name, control);
      elements.set(name, control.element);
    };
    tables.bars.forEach((row, at) => add(row.name, new Bar(row, at, dispatcher)));
    tables.fields.forEach((row, at) => add(row.name, new Field(row, at, dispatcher)));
    tables.buttons.forEach((row, at) => add(row.name, new Button(row, at, dispatcher)));
    tables.labels.forEach((row, at) => {
      const field = tables.fields.find((each) => each.caption === row.name)?.name ?? "";
      add(row.name, new Label(row, at, field, dispatcher));
    });
    const pane = this.addPane("txtHelp", kMain);
    setPlace(pane.element, tables.helpPane);
    return elements.set("txtHelp", pane.element);
  }

  private addPane(id: string, window: WindowId): Pane {
    const pane = new Pane(id, window, this.dispatcher);
    this.panes.set(id, pane);
    return pane;
  }

  private listen(): void {
    for (const type of ["pointerdown", "focusin"])
      document.addEventListener(type, (event) => this.activate(event.target as Element), true);
    window.addEventListener("keydown", (event) => {
      if (event.key === "F1")
        this.dispatcher.act(kMain, (program) =>
          program.run("choose", this.tables.menus.findIndex((row) => row.name === "mnUserGuide")));
      else if (event.key === "F10") this.menu.enter();
      else return;
      event.preventDefault();
    });
    window.addEventListener("pagehide", (event) => {
      if (!event.persisted) this.dispatcher.run((program) => program.run("close_window", kMain));
    });
    window.addEventListener("resize", () => this.paint()); // also when the screen's scale changes
  }

  // Whatever the user touches is the active window. The bare page and a message belong to none.
  // A window that is closed behind another one does not come up before.
  private activate(touched: Element): void {
    if (touched.closest?.(".close")) return;
    const windows: readonly [WindowId, Node][] = [
      ...[...this.dialogs].map(([id, { element }]): [WindowId, Node] => [id, element]),
      [kMain, this.panel], [kMain, this.menu.element],
    ];
    const found = windows.find(([, element]) => element.contains(touched))?.[0];
    if (found !== undefined && this.dispatcher.activeWindow !== found)
      this.dispatcher.act(found, () => {});
  }

  private show(changes: Changes): void {
    this.showControls(changes.controls);
    this.paint();
    this.showWindows(changes);
    for (const [id, html] of Object.entries(changes.panes)) this.panes.get(id)?.show(html);
    this.speak(changes.spoken, Object.keys(changes.panes).pop());
    if (changes.ruling !== undefined) this.frameRuling(changes.ruling);
    for (const { kind, text, title } of changes.requests)
      if (kind === "message") showMessage(text, title);
      else window.open(text, "_blank", "noopener,noreferrer");
    if (changes.running === false) this.end();
  }

  // Play and Pause share one place: the focus stays there when one takes the other's turn.
  private showControls(records: ByName<never>): void {
    const focused = document.activeElement as HTMLElement | null;
    for (const [name, record] of Object.entries(records)) this.controls.get(name)?.show(record);
    if (!focused?.hidden) return;
    const partner = { btnPlay: "btnPause", btnPause: "btnPlay" }[focused.id];
    if (partner) document.getElementById(partner)?.focus();
  }

  private paint(): void {
    for (const picture of this.pictures) picture.paint(this.program);
  }

  private showWindows({ windows, frmAbout, raised }: Changes): void {
    const { dialogs } = this;
    for (const id of windows ? [kGuide, kAbout] as const : []) {
      if (!windows?.includes(id)) {
        dialogs.get(id)?.element.remove();
        dialogs.delete(id);
      } else if (!dialogs.has(id)) dialogs.set(id, this.openDialog(id));
    }
    for (const [name, text] of Object.entries(frmAbout ?? {}))
      document.getElementById(`frmAbout.${name}`)?.replaceChildren(text);
    if (raised !== undefined) dialogs.get(this.dispatcher.activeWindow)?.bringUp();
  }

  private openDialog(id: typeof kGuide | typeof kAbout): Dialog {
    const { tables, icon, dispatcher } = this;
    return id === kAbout ? openAbout(tables.about, icon, dispatcher)
      : openGuide(tables.guide, this.addPane("frmUserGuide.txtHelp", kGuide), dispatcher);
  }

  // A document that has come into its pane is news, and is named by its title.
  private speak(spoken: ByName<Spoken>, news: string | undefined): void {
    for (const [id, [name, description]] of Object.entries(spoken)) {
      const element = document.getElementById(id);
      if (!element) continue;
      setAttribute(element, element instanceof HTMLImageElement ? "alt" : "aria-label", name);
      setAttribute(element, "aria-description", description);
    }
    if (news === undefined) return;
    this.news.textContent = document.getElementById(news)?.getAttribute("aria-label") ?? "";
  }

  private frameRuling(place: Place | null): void {
    if (place) setPlace(this.ruling, place);
    setVisible(this.ruling, place !== null);
  }

  private end(): void {
    for (const timer of this.timers) timer.stop();
    const words = "Selvane has ended: load this page again to start it.";
    document.body.replaceChildren(make("p", { id: "ended", textContent: words },
                                       { role: "status" }));
  }

  private fail(fault: unknown): void {
    for (const timer of this.timers) timer.stop();
    showFault(fault);
  }
}
