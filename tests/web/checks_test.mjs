// Walks through connections, members and their files of cases.
import assert from "node:assert/strict";
import { join } from "node:path";
import { test } from "node:test";
import { fill, kSource, openPage, ready, says, show } from "./browser.mjs";
import { address, addressTells, browser, drop, file, hold, inChromium, letGo, otherLanguage, pick, run, tableMember, walk } from "./walks.mjs";

walk("connections: the case of the form, an error at its field, undo, both editions, the report", "view=connections&lang=en", async (page) => {
  await says(page, ".verdict", "passes");
  await fill(page, "Vy", "9000");
  await says(page, ".verdict", "fails");
  await fill(page, "cols", "-2");
  await page.waitForSelector('input[aria-invalid="true"]');
  await says(page, ".box", "No answer");
  assert.equal((await page.$$(".verdict")).length, 0);
  const back = async () => {
    await page.keyboard.down("Control");
    await page.keyboard.press("z");
    await page.keyboard.up("Control");
  };
  await back();
  await page.waitForFunction(() => !document.querySelector('input[aria-invalid="true"]'));
  await says(page, ".verdict", "fails");
  await back();
  await says(page, ".verdict", "passes");
  await page.select(".formside > .field:nth-of-type(2) select", "both");
  await page.waitForFunction(() => document.querySelectorAll(".verdict").length === 2);
  await page.click("::-p-text(Report)");
  const frame = await (await page.waitForSelector("iframe")).contentFrame();
  await frame.waitForSelector("table");
  for (const kind of ["fillet", "butt", "weld-group"]) {
    await show(page, `view=connections&lang=en&kind=${kind}`);
    await says(page, ".verdict", "passes");
  }
});

walk("a shown section leads to a member with it, whose section is chosen from lists, without a fault on the way", "view=sections&lang=en&table=热轧宽翼缘H型钢&no=HW400X400", async (page) => {
  const faults = () => page.$$eval(".fault, .box.none", (all) => all.map((each) => each.textContent).filter(Boolean));
  await says(page, ".detail h2", "HW400X400");
  await page.click("::-p-text(Check as a member)");
  await addressTells(page, "case", '"no":"HW400X400"');
  await says(page, ".verdict", "passes");
  await pick(page, "Section by", "style");
  await addressTells(page, "case", '"sizes":[300,400,20,10]');
  await pick(page, "edges", "rolled");
  await pick(page, "style", "box");
  await addressTells(page, "case", '"sizes":[300,400,16]');
  await says(page, ".verdict", "passes");
  assert.doesNotMatch(await address(page), /edges/); // which are of the H alone
  await pick(page, "Section by", "table");
  await addressTells(page, "case", '"no":"HW400X400"');
  await pick(page, "table", "热轧普通工字钢");
  await addressTells(page, "case", '"no":"I10"');
  await says(page, ".verdict", "fails");
  assert.deepEqual(await faults(), []);
});

walk("members: trace by clause, and a batch with the worst first", "view=members&lang=en", async (page) => {
  await says(page, ".steps", "8.2.1");
  await drop(page, join(kSource, "examples/members.csv"));
  await says(page, ".batch .grid tbody tr", "brace");
  assert.equal((await page.$$(".answer > .detail:not([hidden])")).length, 0); // no other verdict beside it
  await page.click(".batch .grid tbody tr:nth-child(2) td");
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017");
  await drop(page, file("bad.csv", "steel,nonsense\nQ345,1\n"));
  await says(page, ".batch .fault", "nonsense");
  await page.evaluate(() => {
    const both = new DataTransfer();
    for (const name of ["a.csv", "b.csv"]) both.items.add(new File(["steel\n"], name));
    document.querySelector(".drop").dispatchEvent(new DragEvent("drop", { dataTransfer: both }));
  });
  await says(page, ".drop .fault", "one at a time"); // none of them for all
  await says(page, ".batch h2", "bad.csv");
});

const given = async (page) => JSON.parse(new URLSearchParams(await page.evaluate(() => location.hash.slice(1))).get("case"));

inChromium(walk)("late answers: nothing stands beside a question that it does not answer", `view=members&lang=en&case=${encodeURIComponent(JSON.stringify(tableMember))}`, async (page) => {
  const isPale = () => page.$eval(".answer > .detail", (view) => view.inert && view.classList.contains("waiting"));
  await says(page, ".verdict", "GB 50017-2017");
  await hold(page);
  await pick(page, "Edition", "2003");
  assert.ok(await isPale());
  await letGo(page);
  await says(page, ".verdict", "GB 50017-2003");
  assert.ok(!(await isPale()));

  await hold(page);
  await pick(page, "table", "热轧宽翼缘H型钢");
  await fill(page, "N", "-4321");
  await letGo(page);
  await addressTells(page, "case", "热轧宽翼缘H型钢");
  assert.equal((await given(page)).N, -4321);

  const cases = (id, rows) => file(`${id}.csv`, `id,section.style,section.sizes,steel,N,lengths.x,lengths.y\n${`${id},h,300;400;20;10,Q345,-800,6000,3000\n`.repeat(rows)}`);
  await hold(page);
  await drop(page, cases("first", 2));
  await says(page, ".batch h2", "first.csv");
  await drop(page, cases("second", 1));
  await says(page, ".batch h2", "second.csv");
  await letGo(page);
  await says(page, ".batch .box", "1 cases");
  await page.click('.batch tr[aria-rowindex="2"] td');
  await addressTells(page, "case", '"id":"second"');

  await hold(page);
  await pick(page, "Section by", "table");
  await page.click('::-p-xpath(//nav//a[. = "Connections"])');
  await letGo(page);
  await ready(page);
  await says(page, ".verdict", "passes");
  assert.doesNotMatch(await address(page), /case=/);
});

walk("what is wrong in a combination, or beside them, is said at its own field", "view=members&lang=en", async (page) => {
  const { N: _, ...beside } = tableMember;
  for (const [more, legend, value] of [
    [{ cases: [{ N: -5 }, { N: "zz" }, { N: -7 }] }, "2", "zz"], [{ cases: [{ id: 7, N: -5 }, { id: "a: b].c", N: "zz" }] }, "2", "zz"],
    [{ cases: [{ id: "k", N: -5 }, { id: "k", N: -6 }] }, "2", "k"], [{ cases: [{ id: "k", N: -5 }], load: "midspan" }, "", "midspan"],
  ]) {
    await show(page, `view=members&lang=en&case=${encodeURIComponent(JSON.stringify({ ...beside, ...more }))}`);
    const wrong = await page.$$eval('[aria-invalid="true"]', (all) => all.map((each) => [each.closest("fieldset")?.querySelector("legend").textContent.slice(-1) ?? "", each.value]));
    assert.deepEqual(wrong, [[legend, value]]);
  }
});

walk("cases of a file open as the command reads them, by the edition of their list or their own", "view=members&lang=en", async (page) => {
  const head = "id;section.style;section.sizes;steel;N;lengths.x;lengths.y;code";
  const line = (id, code, more = "") => `${id};h;"300;400;20;10";Q345;-800;6000;3000;${code}${more}`;
  await drop(page, file("odd.csv", [head, line('"5"" pipe\nsteel"', ""), line("007", "2003"), line("surplus", "", ";1")].join("\r")));
  await says(page, ".batch .fault", "has more cells");
  const open = async (id) => page.evaluate((words) => [...document.querySelectorAll(".batch tr[aria-rowindex]")].find((row) => row.children[1].textContent === words).click(), id);
  await open("surplus");
  await says(page, ".batch .fault", "case 3 cannot be read");
  await open("007");
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017-2003");
  await addressTells(page, "code", "2003");
  for (const [way, code] of [["Undo", "2017"], ["Redo", "2003"]]) { // the edition is part of a step
    await page.click(`::-p-text(${way})`);
    await says(page, ".answer > .detail .verdict", `GB 50017-${code}`);
  }
  await open('5" pipe\nsteel');
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017-2017");
  await addressTells(page, "case", '5\\" pipe\\nsteel');
});

walk("a batch of 10,000 members keeps a few rows in the page, the worst first", "view=members&lang=en", async (page, context) => {
  const lines = Array.from({ length: 10_000 }, (_, i) => `C${i},热轧宽翼缘H型钢,HW300X300,Q345,${-1500 - i / 10},3000,3000`);
  await drop(page, file("many.csv", `id,section.table,section.no,steel,N,lengths.x,lengths.y\n${lines.join("\n")}\n`));
  await says(page, ".batch .grid tbody", "C9999");
  await page.$eval(".batch .grid", (grid) => { grid.scrollTop = grid.scrollHeight; });
  await page.waitForFunction(() => [...document.querySelectorAll(".batch .grid tbody td")].some((cell) => cell.textContent === "C0"));
  assert.ok((await page.$$(".batch .grid tbody tr")).length < 80);
});

test("a damaged link opens no example with a verdict", async () => {
  const context = await browser.createBrowserContext();
  for (const given of ["case={bad", "case=null", "case=[1]"]) {
    for (const view of ["members", "connections", "choose"]) {
      const page = await openPage(context, `view=${view}&lang=en&${given}`);
      await says(page, ".fault", "cannot be read");
      await says(page, ".box", "No answer");
      assert.deepEqual([(await page.$$(".verdict")).length, page.faults], [0, []]);
      await page.close();
    }
  }
  await context.close();
});

// The language is no input: what stood there stands there again, in the other one.
walk("another language takes back no step, report, list or edition", `view=members&lang=en&case=${encodeURIComponent(JSON.stringify({ ...tableMember, code: "2003" }))}`, async (page) => {
  await says(page, ".verdict", "GB 50017-2003");
  await pick(page, "Edition", "2017");
  await says(page, ".verdict", "GB 50017-2017");
  await fill(page, "N", "-90000");
  await says(page, ".verdict", "fails");
  await page.click(".steps summary");
  await page.click("::-p-text(Report)");
  await page.waitForSelector("iframe");
  await otherLanguage(page);
  await says(page, ".verdict", "不满足");
  await says(page, ".verdict", "GB 50017-2017"); // not that of the link's case again
  await page.waitForSelector("iframe");
  assert.ok(await page.$eval(".steps", (steps) => steps.open));
  await page.click("::-p-text(撤销)");
  await addressTells(page, "case", '"N":-800,');
  await drop(page, join(kSource, "examples/members.csv"));
  await says(page, ".batch .grid tbody tr", "brace");
  await page.click(".batch th:nth-child(2) button"); // sorted
  await otherLanguage(page);
  await says(page, ".batch .grid tbody tr", "brace");
  assert.equal(await page.$eval(".batch th:nth-child(2)", (head) => head.ariaSort), "ascending");
  assert.equal((await page.$$(".answer > .detail:not([hidden])")).length, 0);
  await page.click(".batch .grid tbody tr:nth-child(2) td");
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017");
  await otherLanguage(page);
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017");
  await page.waitForSelector('.batch tr[aria-selected="true"]');
});

walk("a ratio near its limit tells its side, and all its digits in its tip", "view=members&lang=en", async (page) => {
  const ofTension = (N) => ({ ...tableMember, N });
  const { out } = await run(page, ["check", "member", "c.json", "--json"], { "c.json": JSON.stringify(ofTension(2000)) });
  const limit = 2000 / JSON.parse(out).ratio;
  for (const [ratio, text, verdict] of [[1.00000001, "> 100 %", "fails"], [1.00004, "100.004 %", "fails"], [0.99999999, "< 100 %", "passes"], [0.99996, "99.996 %", "passes"], [0.87654321, "87.65 %", "passes"]]) {
    await show(page, `view=members&lang=en&case=${encodeURIComponent(JSON.stringify(ofTension(limit * ratio)))}`);
    await says(page, ".verdict .box", `${verdict} · ${text}`);
    const tips = await page.$$eval(".verdict .box [title], .verdict .part [title]", (all) => all.map((each) => Number(each.title)));
    assert.ok(tips.length > 2 && tips.some((tip) => Math.abs(tip - ratio) < 1e-12), tips.join());
  }
});
