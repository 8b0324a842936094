// How long after its opening the page shows its first answer, in ms: a table with a section's picture and figures, and
// an own section, each in a browser that has seen nothing.
//
//   node bench/page_start.mjs [REPEATS]     after scripts/page
import { openPage, start } from "../tests/web/browser.mjs";

const repeats = Number(process.argv[2] ?? 7);
const browser = await start();

async function opened(view) {
  const context = await browser.createBrowserContext();
  const page = await openPage(context, `view=${view}&lang=en`);
  const time = await page.evaluate(async () => {
    while (!document.querySelector(".detail article .picture")) await new Promise(requestAnimationFrame);
    return performance.now(); // from the start of the navigation
  });
  await context.close();
  return time;
}

for (const view of ["sections", "own"]) {
  const times = [];
  for (let i = 0; i < repeats; ++i) times.push(await opened(view));
  times.sort((a, b) => a - b);
  console.log(`${view.padEnd(10)} least ${times[0].toFixed(0)}, median ${times[repeats >> 1].toFixed(0)}, longest ${times.at(-1).toFixed(0)} ms`);
}
await browser.close();
