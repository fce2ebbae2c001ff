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
  room: number; // pixels that the text may take; 0: as it needs
}>;
export type TimerRow = Readonly<{ name: string; runsHidden: boolean }>;
export type MenuRow = Readonly<{
  name: string; checkable: boolean;
  caption: string; // empty: a separator
  under: number; // -1: stands in the bar
}>;
export type AboutRow = Row<{
  text: string; accessKey?: string; pixels: number; bold: boolean;
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
  rulingFrames: readonly { place: Place }[];
  rulingColour: Colour;
  readingOrder: readonly string[];
  helpPane: { place: Place };
  guide: { caption: string; place: Place; topics: readonly Row<{ caption: string }>[] };
  about: {
    width: number; height: number; controls: readonly AboutRow[];
    rules: readonly { place: Place; colour: Colour }[];
  };
}>;

export type BarRecord = Readonly<{
  min: number; max: number; small: number; large: number; value: number; visible: boolean;
}>;
export type FieldRecord = Readonly<{ text: string; fault: string; visible: boolean }>;
export type LabelRecord = Readonly<{ caption: string; toolTip: string; visible: boolean }>;
export type TimerRecord = Readonly<{ enabled: boolean; interval: number }>; // ms
export type MarkerRecord = Readonly<{ // pixels of the picture
  left: number; top: number; colour: Colour | null; visible: boolean;
}>;
export type PaneRecord = Readonly<{ html: string }>;
// The texts of the labels that are set when the box is loaded.
export type AboutRecord = Readonly<{ caption: string; texts: Readonly<Record<string, string>> }>;
export type Spoken = readonly [name: string, description: string];
export type WindowName = "main" | "guide" | "about";
export type Request = Readonly<{ kind: "link"; target: string }> |
  Readonly<{ kind: "message"; text: string; title: string }>;
export type ByName<Value> = Readonly<Record<string, Value>>;

// What differs from what was sent before; a control that stands as it was is not there.
export type Changes = Readonly<{
  bars: ByName<BarRecord>;
  fields: ByName<FieldRecord>;
  buttons: ByName<boolean>; // visible
  labels: ByName<LabelRecord>;
  timers: ByName<TimerRecord>;
  menus: ByName<boolean>; // checked
  ruling?: number; // row of the pair that rules the orbit's shape, or minus one
  marker?: MarkerRecord;
  pane?: PaneRecord;
  guide?: PaneRecord | null; // null: not open
  about?: AboutRecord | null;
  active?: WindowName;
  raised?: number; // changes when the active window asks for the front
  running?: boolean;
  // For a screen reader; controls of the other windows stand behind their window's name.
  spoken: ByName<Spoken>;
  requests: readonly Request[];
}>;
