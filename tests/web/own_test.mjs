// Walks through own sections: styles and outlines of files.
import assert from "node:assert/strict";
import { join } from "node:path";
import { fill, openPage, says, show } from "./browser.mjs";
import { address, addressTells, drop, file, folder, hold, inChromium, letGo, otherLanguage, pick, run, tableMember, walk } from "./walks.mjs";

walk("own section: every key is followed, a bad size is said at its field, a save is kept", "view=own&lang=en", async (page, context) => {
  await says(page, ".detail h2", "300×400×20×10");
  await fill(page, "tw ", "500");
  await says(page, ".fault", "must be at most 300");
  assert.equal(await page.$$eval('[aria-invalid="true"]', (all) => all.length), 1);
  assert.equal((await page.$$(".detail table, .detail .picture")).length, 0);
  await fill(page, "tw ", "12");
  await says(page, ".detail h2", "300×400×20×12");
  assert.ok(await page.$eval(".detail .picture", (place) => place.shadowRoot.querySelector("svg").getBoundingClientRect().height > 200));
  const { out } = await run(page, ["section", "h", "300", "400", "20", "12", "--json"]);
  const shown = await page.$$eval(".figures tr", (rows) => Object.fromEntries(rows.map((row) => [row.children[0].textContent, row.children[1].title])));
  assert.equal(shown["It"], String(JSON.parse(out).exact.It));
  await fill(page, "Name to keep it by", "W1");
  await page.click("::-p-text(Keep in own store)");
  await says(page, '[role="status"]', "W1");
  const again = await openPage(context, "view=sections&lang=en&table=自定义对称H型钢&no=W1");
  await says(again, ".detail h2", "W1");
  assert.deepEqual(again.faults, []);
});

walk("an outline from a DXF, and one that is none", "view=own&lang=zh", async (page, context) => {
  const square = (layer, size, at) => `0\nLWPOLYLINE\n8\n${layer}\n90\n4\n70\n1\n10\n${at}\n20\n0\n10\n${at + size}\n20\n0\n10\n${at + size}\n20\n${size}\n10\n${at}\n20\n${size}\n`;
  file("two.dxf", `0\nSECTION\n2\nENTITIES\n${square("0", 100, 0)}${square("axis", 20, 300)}0\nENDSEC\n0\nEOF\n`);
  const dxf = (points) => `0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n90\n${points.length}\n70\n1\n${points.map(([x, y]) => `10\n${x}\n20\n${y}\n`).join("")}0\nENDSEC\n0\nEOF\n`;
  await drop(page, file("plate.dxf", dxf([[0, 0], [100, 0], [100, 50], [0, 50]])));
  await says(page, ".detail h2", "plate.dxf");
  await says(page, ".detail", "5\u202f000");
  await addressTells(page, "outline", "plate.dxf");
  const link = await address(page);
  await drop(page, join(folder, "two.dxf"));
  await says(page, ".detail", "two.dxf");
  await pick(page, "DXF 的图层", "axis");
  await says(page, ".figures td", "400");
  await addressTells(page, "layer", "axis");
  await drop(page, file("broken.dxf", "no drawing"));
  await says(page, ".detail .box", "broken.dxf");
  const comment = Array.from({ length: 3000 }, (_, i) => `999\n${((i * 2654435761) % 4294967296).toString(36)}\n`).join("");
  await drop(page, file("long.dxf", comment + dxf([[0, 0], [90, 0], [90, 50], [0, 50]])));
  await says(page, ".detail", "4\u202f500");
  assert.doesNotMatch(await address(page), /shape=/);
  const [without, again] = [await address(page), link];
  for (const [hash, place, words] of [[without, ".detail .box", "链接中没有这个外轮廓"], [again, ".detail", "5\u202f000"]]) {
    const opened = await openPage(context, hash);
    await says(opened, place, words);
    assert.deepEqual(opened.faults, []);
  }
});

inChromium(walk)("names and sizes that look like options, and only what has an answer is kept", "view=own&lang=en&style=rect&sizes=100,200&name=--json", async (page, context) => {
  page.on("dialog", (dialog) => dialog.accept());
  await says(page, ".detail h2", "100×200");
  for (const bad of ["-h", "1e12", "10³"]) {
    await fill(page, "b ", bad);
    await says(page, ".box", "No answer");
    assert.ok(await page.$eval("::-p-text(Keep in own store)", (button) => button.disabled), bad);
  }
  await fill(page, "b ", "100");
  await says(page, ".detail h2", "100×200");
  const member = await openPage(context, `view=members&lang=en&case=${encodeURIComponent(JSON.stringify({ ...tableMember, section: { table: "自定义对称H型钢", no: "H1" } }))}`);
  await says(member, ".box", "No answer");
  await page.bringToFront(); // a tab behind draws nothing
  await hold(page);
  await page.click("::-p-text(Keep in own store)");
  await fill(page, "b ", "555");
  await letGo(page);
  await says(page, '[role="status"]', '"--json": added · 100×200');
  assert.match((await run(page, ["rows", "矩形截面", "--json"])).out, /"--json",\s*"100",\s*"200"/);
  const cells = ["b=300", "h=400", "tf=20", "tw=10"].flatMap((cell) => ["--set", cell.replace("=", "(mm)=")]);
  assert.equal((await run(page, ["store", "add", "自定义对称H型钢", "--set", "No.=H1", ...cells])).status, 0);
  await member.bringToFront();
  await says(member, ".verdict", "passes"); // of the row that another tab has saved
  await run(member, ["store", "delete", "自定义对称H型钢", "H1"]);
  await says(member, ".box", "No answer"); // nor is it that of a row which this one has deleted
  assert.deepEqual(member.faults, []);
  await member.close();
  await show(page, "view=store&lang=en");
  await page.click('[aria-label="Delete --json"]');
  await says(page, ".log", '"--json": deleted');
});

walk("what a link names beside what there is has no answer", "view=own&lang=en&sizes=300,400,20,10,99", async (page) => {
  await says(page, ".box", "5 were given");
  await show(page, "view=sections&lang=en&range=H(mm)|300|");
  await says(page, ".range .fault", 'no column "H(mm)"');
  await says(page, '[role="status"]', "0 of 34");
  await show(page, "view=code&lang=en&args=Q345+20+f+more");
  await says(page, ".box", "4 arguments were given");
  await show(page, "view=code&lang=en&args=Q345+20+nope");
  await says(page, ".box", "nope");
});

walk("a file that is still being read when something else is asked for counts no more", "view=own&lang=en", async (page) => {
  await says(page, ".detail h2", "300×400×20×10");
  await page.evaluate(() => {
    const late = new DataTransfer();
    late.items.add(new File(["0\nEOF\n"], "late.dxf"));
    const read = File.prototype.arrayBuffer;
    File.prototype.arrayBuffer = () => new Promise((done) => (window.read = () => done(new ArrayBuffer(0))));
    document.querySelector(".drop").dispatchEvent(new DragEvent("drop", { dataTransfer: late }));
    File.prototype.arrayBuffer = read;
  });
  await page.click('::-p-xpath(//nav//a[. = "Members"])');
  await says(page, ".verdict", "passes");
  await page.evaluate(() => window.read());
  assert.equal((await run(page, ["tables"])).status, 0); // by then it is read
  assert.doesNotMatch(await address(page), /late/);
});

walk("numbers as the page writes them are taken, other blanks and commas are not, in both languages", "view=own&lang=en&style=rect", async (page) => {
  for (const [b, h, title] of [["1\u202f200", "１\u2009234.5", "1200×1234.5"], ["1 300", "1\u00a0234", "1300×1234"]]) {
    await fill(page, "b ", b);
    await fill(page, "h ", h);
    await says(page, ".detail h2", title);
  }
  for (const bad of ["1 20", "12 0 200", "0 200", "1,5", "1  200", ""]) {
    await fill(page, "h ", bad);
    await says(page, ".box", "No answer");
    await otherLanguage(page);
    await says(page, ".box", "没有结果");
    await otherLanguage(page);
    await says(page, ".box", "No answer");
  }
});

inChromium(walk)("a style or a figure of the code that is chosen takes the old one away at once", "view=own&lang=en", async (page) => {
  for (const [hash, next, old, fresh] of [["view=own&lang=en", "tube", "300×400", "110×100"], ["view=code&lang=en", "preload", "295", "155"]]) {
    await show(page, hash);
    await says(page, ".detail", old);
    await page.focus("form select");
    await hold(page);
    await page.select("form select", next);
    assert.doesNotMatch(await page.$eval("main", (main) => main.textContent), new RegExp(old));
    await letGo(page);
    await says(page, ".detail", fresh);
    await page.waitForFunction((value) => document.activeElement.value === value, {}, next); // the focus is there again
  }
});
