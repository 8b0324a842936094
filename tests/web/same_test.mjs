// The command in the page answers, byte for byte, what the native command answers.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { copyFileSync, cpSync, mkdirSync, mkdtempSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { kNative, openPage, start } from "./browser.mjs";
import { commands } from "./commands.mjs";

// A native installation of its own, whose home is empty at first; paths of both are written alike.
const root = mkdtempSync(join(tmpdir(), "orv3cal-page-"));
let browser;

function native([argv, files]) {
  const folder = join(root, "work");
  rmSync(folder, { recursive: true, force: true });
  mkdirSync(folder);
  for (const [name, text] of Object.entries(files)) writeFileSync(join(folder, name), text);
  const run = spawnSync(join(root, "usr/bin/orv3cal"), argv, { cwd: folder, env: { HOME: join(root, "home"), LD_LIBRARY_PATH: kNative }, maxBuffer: 1 << 28 });
  const made = readdirSync(folder).filter((name) => !(name in files) && statSync(join(folder, name)).isFile());
  return {
    status: run.status,
    out: run.stdout.toString().replaceAll(root, ""),
    err: run.stderr.toString().replaceAll(root, ""),
    files: Object.fromEntries(made.map((name) => [name, readFileSync(join(folder, name)).toString("base64")])),
  };
}

const inPage = (page, line) =>
  page.evaluate(async ([argv, files]) => {
    const { files: made, ...answer } = await window.orv3cal.run(argv, files);
    const base64 = (bytes) => btoa(bytes.reduce((text, byte) => text + String.fromCharCode(byte), ""));
    return { ...answer, files: Object.fromEntries(Object.entries(made).map(([name, bytes]) => [name, base64(bytes)])) };
  }, line);

before(async () => {
  for (const folder of ["usr/bin", "usr/share", "home"]) mkdirSync(join(root, folder), { recursive: true });
  copyFileSync(join(kNative, "bin/orv3cal"), join(root, "usr/bin/orv3cal"));
  cpSync(join(kNative, "share/orv3cal"), join(root, "usr/share/orv3cal"), { recursive: true });
  browser = await start();
});
after(async () => {
  await browser?.close();
  rmSync(root, { recursive: true, force: true });
});

test("every line is answered as by the native command", async () => {
  const page = await openPage(await browser.createBrowserContext(), "view=store&lang=en");
  const lines = commands();
  assert.ok(lines.length >= 200, `${lines.length} lines`);
  const different = [];
  for (const line of lines) {
    const [want, got] = [native(line), await inPage(page, line)];
    try {
      assert.deepEqual(got, want);
    } catch (fault) {
      different.push(`orv3cal ${line[0].join(" ")}\n${fault.message}`);
    }
  }
  assert.equal(different.length, 0, `${different.length} of ${lines.length}:\n${different.slice(0, 5).join("\n")}`);
  assert.deepEqual(page.faults, []);
});
