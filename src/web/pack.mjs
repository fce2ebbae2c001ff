// Packs the page into one file: pack.mjs MODULE OUT. The program and its documents are compressed
// together; script and style are allowed by what they are, and nothing else is.
import { createHash } from "node:crypto";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { build } from "esbuild";

const web = dirname(fileURLToPath(import.meta.url));
const root = dirname(dirname(web));
const [module, out] = process.argv.slice(2);
if (!module || !out) throw new Error("usage: pack.mjs MODULE OUT");

const fontFolder = "/usr/share/fonts/truetype/crosextra";
// What the program and its documents write: Latin, Greek letters, signs of formulas.
const letters = "U+0020-007E,U+00A0-00FF,U+0391-03C9,U+2010-2026,U+2032,U+2033,U+20AC,U+2122," +
  "U+2190-2193,U+2212,U+221A,U+221E,U+2248,U+2260,U+2264,U+2265";
// A part of a font does not bear its name; its copyright and licence it keeps.
const fonts = [["Regular", "normal", "normal"], ["Bold", "bold", "normal"],
               ["Italic", "normal", "italic"]];

function fontFaces() {
  const folder = mkdtempSync(join(tmpdir(), "selvane-fonts-"));
  const faces = fonts.map(([name, weight, style]) => {
    const subset = join(folder, `${name}.woff2`);
    execFileSync("/usr/bin/python3", ["-m", "fontTools.subset",
      join(fontFolder, `Carlito-${name}.ttf`), `--unicodes=${letters}`, "--flavor=woff2",
      "--layout-features=kern,liga,mark,mkmk,ccmp,locl",
      "--name-IDs=0,13,14", `--output-file=${subset}`],
      { stdio: ["ignore", "ignore", "pipe"] });
    const bytes = readFileSync(subset).toString("base64");
    return `@font-face{font-family:"Selvane Text";font-weight:${weight};font-style:${style};` +
      // The window's toolkit measures lines by these of the font's measures, browsers by others.
      `ascent-override:95.2%;descent-override:26.9%;line-gap-override:0%;` +
      `src:url(data:font/woff2;base64,${bytes})}`;
  });
  rmSync(folder, { recursive: true });
  return faces.join("");
}

async function bundle(entry) {
  const result = await build({
    entryPoints: [join(web, entry)], bundle: true, minify: true, write: false, legalComments: "none",
    target: ["chrome90", "firefox113", "safari16.4"],
  });
  return result.outputFiles[0].text.trim();
}

function packFiles() {
  const names = readdirSync(join(root, "help")).filter((name) => name.endsWith(".rtf")).sort();
  const files = [["selvane.wasm", readFileSync(module)],
                 ...names.map((name) => [name, readFileSync(join(root, "help", name))])];
  const parts = files.flat().map((part) => Buffer.from(part)).flatMap((bytes) => {
    const size = Buffer.alloc(4);
    size.writeUInt32LE(bytes.length);
    return [size, bytes];
  });
  return gzipSync(Buffer.concat(parts), { level: 9 }).toString("base64");
}

const hashOf = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
const script = await bundle("script/main.ts");
const style = fontFaces() + (await bundle("style.css"));
const icon = readFileSync(join(root, "packaging/icons/selvane.svg")).toString("base64");
const parts = {
  script, style,
  files: packFiles(),
  icon: `data:image/svg+xml;base64,${icon}`,
  licence: readFileSync(join(root, "LICENSE"), "utf8").split("\n").filter(Boolean)
    .slice(0, 2).join(", "),
  fontLicence: "Copyright 2010-2013 by tyPoland Lukasz Dziedzic, SIL Open Font License 1.1.",
  unpackerLicence: readFileSync(join(web, "node_modules/fflate/LICENSE"), "utf8").split("\n")
    .filter(Boolean).slice(0, 2).join(", "),
  policy: ["default-src 'none'", `script-src ${hashOf(script)} 'wasm-unsafe-eval'`,
           // Documents bring the measures of their paragraphs as style attributes.
           `style-src-elem ${hashOf(style)}`, "style-src-attr 'unsafe-inline'",
           "font-src data:", "img-src data:", "base-uri 'none'", "form-action 'none'"].join("; "),
};
const template = readFileSync(join(web, "page.html"), "utf8");
const page = template.replace(/\{\{(\w+)\}\}/g, (_, name) => {
  if (parts[name] === undefined) throw new Error(`nothing for ${name}`);
  return parts[name];
});
writeFileSync(out, page);
console.log(`${out}: ${Buffer.byteLength(page)} bytes`);
