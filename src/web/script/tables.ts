// The control table and the records, as the program gives them. Places are pixels of the page.

export type Colour = readonly [red: number, green: number, blue: number];
export type Place = readonly [left: number, top: number, width: number, height: number];
type Row<Own = unknown> = Readonly<{ name: string; place: Place } & Own>;

export type PictureRow = Row;
export type BarRow = Row<{ vertical: boolean; caption: string }>; // the label that says what it is for
export type FieldRow = Row<{ caption: string }>;
export type Glyph = "" | "back" | "pause" | "play" | "forward";
export type ButtonRow = Row<{ caption: string; glyph: Glyph }>;
export type LabelRow = Row<{
  align: "left" | "center" | "right"; pixels: number; bold: boolean; underline: boolean;
  colour: Colour | null; filled: boolean; link: boolean;
  maxWidth: number; // pixels that the text may take; 0: as it needs
}>;
export type TimerRow = Readonly<{ name: string; runsHidden: boolean }>;
export type MenuRow = Readonly<{
  name: string; checkable: boolean;
  caption: string; // empty: a separator
  under: number; // -1: stands in the bar
}>;
export type AboutRow = Row<{
  text: string; accessKey: string; pixels: number; bold: boolean;
  kind: "icon" | "label" | "link" | "button";
}>;

export type Tables = Readonly<{
  pictures: readonly PictureRow[];
  bars: readonly BarRow[];
  fields: readonly FieldRow[];
  buttons: readonly ButtonRow[];
  labels: readonly LabelRow[];
  timers: readonly TimerRow[];
  menus: readonly MenuRow[];
  frames: readonly Row<{ fill: Colour | null }>[];
  rulingColour: Colour;
  readingOrder: readonly string[];
  helpPane: Place;
  guide: { caption: string; place: Place; topics: readonly Row<{ caption: string }>[] };
  about: {
    width: number; height: number; controls: readonly AboutRow[];
    rules: readonly { place: Place; colour: Colour }[];
  };
}>;

export type BarRecord = Readonly<{
  min: number; max: number; small: number; value: number; visible: boolean;
}>;
export type FieldRecord = Readonly<{ text: string; fault: string; visible: boolean }>;
export type ButtonRecord = Readonly<{ visible: boolean }>;
export type LabelRecord = Readonly<{ caption: string; toolTip: string; visible: boolean }>;
export type TimerRecord = Readonly<{ enabled: boolean; interval: number }>; // ms
export type MenuRecord = Readonly<{ checked: boolean }>;
export type MarkerRecord = Readonly<{ // pixels of the picture; no place before the first one
  left?: number; top?: number; colour?: Colour | null; visible: boolean;
}>;
export type Spoken = readonly [name: string, description: string];
export type Request = Readonly<{ kind: "link" | "message"; text: string; title: string }>;
export type ByName<Value> = Readonly<Record<string, Value>>;

// The program's number for a window.
export const kMain = 0, kGuide = 1, kAbout = 2;
export type WindowId = typeof kMain | typeof kGuide | typeof kAbout;

// What shows a record; each kind of control takes its own kind of record.
export interface Control {
  show(record: never): void;
}

// What differs from what was sent before; a control that stands as it was is not there.
export type Changes = Readonly<{
  controls: ByName<never>; // records by name
  windows?: readonly WindowId[]; // those that are open, the active one last
  raised?: number; // changes when the active window asks for the front
  running?: boolean;
  frmAbout?: ByName<string>; // its texts
  ruling?: Place | null; // of the frame round the pair that rules the orbit's shape
  panes: ByName<string>; // HTML by the pane's element
  spoken: ByName<Spoken>; // for a screen reader, by element
  requests: readonly Request[];
}>;
