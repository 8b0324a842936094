// Puts the core, the catalogue and the page's own modules into one HTML file.
//
//   node web/bundle.mjs CORE DATA OUT: CORE holds orv3cal.js and orv3cal.wasm, DATA the catalogue.
import { createHash } from "node:crypto";
import { readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { build } from "esbuild";
import { caseWords } from "./case_words.mjs";

const [core, data, out] = process.argv.slice(2);
const here = dirname(fileURLToPath(import.meta.url));

// What a module gets when it asks for "inside:NAME", as the text of a JavaScript module.
const inside = {
  words: () => `export default ${JSON.stringify(caseWords(join(here, "../docs/case-keys.md")))};`,
  worker: async () => {
    const glue = readFileSync(join(core, "orv3cal.js"), "utf8");
    return `export default ${JSON.stringify(glue + (await bundle("command/worker.ts")))};`;
  },
};
const insidePlugin = {
  name: "inside",
  setup(setup) {
    setup.onResolve({ filter: /^inside:/ }, ({ path }) => ({ path: path.slice(7), namespace: "inside" }));
    setup.onLoad({ filter: /.*/, namespace: "inside" }, async ({ path }) => ({
      contents: await inside[path](),
      loader: "js",
    }));
  },
};

async function bundle(entry) {
  const made = await build({
    entryPoints: [join(here, "src", entry)],
    bundle: true,
    minify: true,
    write: false,
    format: "iife",
    target: "es2022",
    charset: "utf8",
    legalComments: "none",
    loader: { ".csv": "text" },
    plugins: [insidePlugin],
  });
  return made.outputFiles[0].text;
}

const script = (await bundle("main.ts")).replaceAll("</script", "<\\/script");
const style = readFileSync(join(here, "src/page.css"), "utf8");
const hash = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
// What the worker unpacks stands behind the script, as text that the browser does not read.
const packed = (name, file) =>
  `<script type="text/plain" id="inside-${name}">${gzipSync(readFileSync(file), { level: 9 }).toString("base64")}</script>\n`;
const payload = packed("wasm", join(core, "orv3cal.wasm")) + packed("store", join(data, "KvbSystemJmDataBase.KDB")) +
  packed("exact", join(data, "KvbSystemJmDataBase.KXP"));
// Nothing is fetched and nothing is sent: no address is allowed but what the page makes itself.
const policy = [
  "default-src 'none'",
  `script-src ${hash(script)} 'wasm-unsafe-eval' blob:`,
  "worker-src blob:",
  "style-src 'unsafe-inline'",
  "img-src data: blob:",
  "base-uri 'none'",
  "form-action 'none'",
].join("; ");
const html = readFileSync(join(here, "src/page.html"), "utf8")
  .replace("@POLICY@", policy)
  .replace("@STYLE@", () => style)
  .replace("@SCRIPT@", () => script)
  .replace("@PAYLOAD@", () => payload);
writeFileSync(out, html);
console.log(`${out}: ${(html.length / 1e6).toFixed(2)} MB`);
