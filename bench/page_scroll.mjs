// Whether a list of 10,000 rows scrolls without a stutter: the time from frame to frame, in ms, while the
// list is scrolled at each by so many pixels.
//
//   node bench/page_scroll.mjs [ROWS]     after scripts/page
import { openPage, says, start } from "../tests/web/browser.mjs";

const count = Number(process.argv[2] ?? 10_000);
const lines = Array.from({ length: count }, (_, i) => `C${i},热轧宽翼缘H型钢,HW300X300,Q345,${-1500 - i / 10},3000,3000`);
const csv = `id,section.table,section.no,steel,N,lengths.x,lengths.y\n${lines.join("\n")}\n`;
const browser = await start();
const page = await openPage(browser, "view=members&lang=en");
await page.evaluate((text) => {
  const files = new DataTransfer();
  files.items.add(new File([text], "many.csv"));
  document.querySelector(".drop").dispatchEvent(new DragEvent("drop", { dataTransfer: files, cancelable: true }));
}, csv);
await says(page, ".batch .grid tbody", `C${count - 1}`);

const frames = (step) => page.evaluate(async (pixels) => {
  const grid = document.querySelector(".batch .grid");
  grid.scrollTop = 0;
  const times = [];
  let last = await new Promise(requestAnimationFrame);
  for (let i = 0; i < 240; ++i) {
    grid.scrollTop += pixels;
    const now = await new Promise(requestAnimationFrame);
    times.push(now - last);
    last = now;
  }
  return times;
}, step);

for (const step of [30, 120, 600, 3000]) {
  const times = (await frames(step)).sort((a, b) => a - b);
  const late = times.filter((each) => each > 25).length;
  console.log(`${String(step).padStart(4)} px a frame: median ${times[120].toFixed(1)}, longest ${times.at(-1).toFixed(1)}, ${late} of 240 above 25`);
}
await browser.close();
