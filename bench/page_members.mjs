// Member checks a second: a CSV through the command in the page, beside the native command.
//
//   node bench/page_members.mjs [CASES]     after scripts/page
import { spawnSync } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { kNative, openPage, start } from "../tests/web/browser.mjs";

const count = Number(process.argv[2] ?? 10_000);
const rolled = ["HW300X300", "HW350X350", "HW400X400", "HW250X250"];
const lines = Array.from({ length: count }, (_, i) =>
  ["热轧宽翼缘H型钢", rolled[i % 4], "Q345", -400 - (i % 400), 50_000 + 100 * (i % 500), 60, "uniform", 6000, 3000 + (i % 1000)].join(","));
const csv = `section.table,section.no,steel,N,Mx,Vy,load,lengths.x,lengths.y\n${lines.join("\n")}\n`;
const folder = mkdtempSync(join(tmpdir(), "orv3cal-bench-"));
const file = join(folder, "cases.csv");
writeFileSync(file, csv);

function native() {
  const from = performance.now();
  spawnSync(join(kNative, "bin/orv3cal"), ["check", "member", file, "--csv"], { maxBuffer: 1 << 30 });
  return performance.now() - from;
}

const browser = await start();
const page = await openPage(browser);
const inPage = () => page.evaluate(async (text) => {
  const from = performance.now();
  await window.orv3cal.run(["check", "member", "cases.csv", "--csv"], { "cases.csv": text });
  return performance.now() - from;
}, csv);

for (const [name, run] of [["native", native], ["page", inPage]]) {
  const times = [];
  for (let i = 0; i < 5; ++i) times.push(await run());
  const best = Math.min(...times);
  console.log(`${name}: ${count} cases in ${best.toFixed(0)} ms, ${((count / best) * 1000).toFixed(0)} a second`);;
}
await browser.close();
rmSync(folder, { recursive: true });
