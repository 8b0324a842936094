// The page as its user walks it.
import assert from "node:assert/strict";
import { existsSync, mkdirSync, readFileSync, statSync, writeFileSync, mkdtempSync, rmSync } from "node:fs";
import { createServer } from "node:http";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { fill, kAxe, kFirefox, kPage, kSource, openPage, ready, says, show, start, textOf } from "./browser.mjs";

const kViews = ["sections", "own", "lattice", "connections", "members", "choose", "code", "store"];

let browser;
let context;
const folder = mkdtempSync(join(tmpdir(), "orv3cal-page-"));

before(async () => {
  browser = await start();
});
after(async () => {
  await browser?.close();
  rmSync(folder, { recursive: true, force: true });
});

// Each walk in a browser that has seen nothing, without a request, an error or a word on the console.
function walk(name, hash, steps, size) {
  test(name, async () => {
    context = await browser.createBrowserContext();
    const page = await openPage(context, hash, size);
    await steps(page);
    assert.deepEqual(page.faults, []);
    await context.close();
  });
}

// What asks Chromium for more than a user could (where downloads go, a quota, what pages may keep), or goes by keys
// out of the page, where Firefox has stops of its own.
const inChromium = (run) => (kFirefox ? () => {} : run);

function file(name, text) {
  const path = join(folder, name);
  writeFileSync(path, text);
  return path;
}

async function drop(page, path, which = 0) {
  const inputs = await page.$$('input[type="file"]');
  await inputs[which].uploadFile(path);
}

// The address follows the keys by some tenths of a second.
const address = (page) => page.evaluate(() => decodeURIComponent(location.hash.slice(1)));
const addressTells = (page, key, words) =>
  page.waitForFunction((name, what) => (new URLSearchParams(location.hash.slice(1)).get(name) ?? "").includes(what), {}, key, words);

const run = (page, argv, files = {}) => page.evaluate((line, given) => window.orv3cal.run(line, given), argv, files);

test("the file is small, and names no address", () => {
  assert.ok(statSync(kPage).size <= 2.5e6, `${statSync(kPage).size} bytes`);
  const policy = /Content-Security-Policy" content="([^"]+)"/.exec(readFileSync(kPage, "utf8"))[1];
  assert.match(policy, /default-src 'none'/);
  assert.doesNotMatch(policy, /connect-src|https?:/);
});

walk("sections: search, range, sort, keys, turn, compare, and a link that opens the same", "view=sections&lang=en&table=热轧普通工字钢", async (page) => {
  await says(page, ".detail h2", "I10");
  await fill(page, "Search all columns", "I2");
  await says(page, '[role="status"]', "8 of 34");
  await page.select(".range select", "A(cm^2)");
  await page.type('.range input[aria-label="at least"]', "45");
  await says(page, '[role="status"]', "5 of 34");
  await page.type('.range input[aria-label="at least"]', ",5");
  await says(page, ".range .fault", '"45,5" is no number');
  for (let i = 0; i < 4; ++i) await page.keyboard.press("Backspace");
  await page.keyboard.type("４５");
  await says(page, '[role="status"]', "5 of 34");
  await page.click(".grid th:nth-child(9) button");
  await page.click(".grid th:nth-child(9) button");
  assert.equal(await page.$eval(".grid th:nth-child(9)", (cell) => cell.getAttribute("aria-sort")), "descending");
  assert.equal(await textOf(page, ".grid tbody tr td:nth-child(2)"), "I28b");
  await page.focus(".grid");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("ArrowDown");
  await says(page, ".detail h2", "I28a");
  await page.select(".detail select", "90");
  await page.click(".grid tbody tr:nth-child(1) input");
  await says(page, ".compare thead", "I28b");
  await page.click(".grid tbody tr:nth-child(2) input");
  await says(page, ".compare thead", "I28a");
  await addressTells(page, "compare", "I28a");
  const again = await openPage(context, await address(page));
  await says(again, ".detail h2", "I28a");
  await says(again, ".compare thead", "I28b");
  assert.equal(await again.$eval(".detail select", (select) => select.value), "90");
  assert.deepEqual(again.faults, []);
});

walk("a batch of 10,000 members keeps a few rows in the page, the worst first", "view=members&lang=en", async (page) => {
  const lines = Array.from({ length: 10_000 }, (_, i) => `C${i},热轧宽翼缘H型钢,HW300X300,Q345,${-1500 - i / 10},3000,3000`);
  await drop(page, file("many.csv", `id,section.table,section.no,steel,N,lengths.x,lengths.y\n${lines.join("\n")}\n`));
  await says(page, ".batch .grid tbody", "C9999");
  await page.$eval(".batch .grid", (grid) => { grid.scrollTop = grid.scrollHeight; });
  await page.waitForFunction(() => [...document.querySelectorAll(".batch .grid tbody td")].some((cell) => cell.textContent === "C0"));
  assert.ok((await page.$$(".batch .grid tbody tr")).length < 80);
});

walk("own section: every key is followed, a bad size is said at its field, a save is kept", "view=own&lang=en", async (page) => {
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

walk("an outline from a DXF, and one that is none", "view=own&lang=zh", async (page) => {
  const square = (layer, size, at) => `0\nLWPOLYLINE\n8\n${layer}\n90\n4\n70\n1\n10\n${at}\n20\n0\n10\n${at + size}\n20\n0\n10\n${at + size}\n20\n${size}\n10\n${at}\n20\n${size}\n`;
  file("two.dxf", `0\nSECTION\n2\nENTITIES\n${square("0", 100, 0)}${square("axis", 20, 300)}0\nENDSEC\n0\nEOF\n`);
  const dxf = (points) => `0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n90\n${points.length}\n70\n1\n${points.map(([x, y]) => `10\n${x}\n20\n${y}\n`).join("")}0\nENDSEC\n0\nEOF\n`;
  await drop(page, file("plate.dxf", dxf([[0, 0], [100, 0], [100, 50], [0, 50]])));
  await says(page, ".detail h2", "plate.dxf");
  await says(page, ".detail", "5\u202f000");
  await addressTells(page, "outline", "plate.dxf");
  const link = await address(page);
  await drop(page, join(folder, "two.dxf"));
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

// The fields of a form change with what is chosen: the last select whose label begins so.
async function pick(page, label, value) {
  const id = await page.$$eval("label", (all, words) => all.filter((each) => each.textContent.startsWith(words)).at(-1).htmlFor, label);
  await page.waitForFunction((place, want) => [...document.getElementById(place).options].some((each) => each.value === want), {}, id, value);
  await page.select(`#${id}`, value);
}

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
});

// Keeps back what the worker answers, until it is let go. Only Chromium lets a test into a worker.
const hold = (page) => page.workers()[0].evaluate(() => {
  const post = self.postMessage.bind(self);
  const held = [];
  self.postMessage = (reply) => held.push(reply);
  self.letGo = () => {
    self.postMessage = post;
    held.forEach((reply) => post(reply));
  };
});
const letGo = (page) => page.workers()[0].evaluate(() => self.letGo());
const given = async (page) => JSON.parse(new URLSearchParams(await page.evaluate(() => location.hash.slice(1))).get("case"));

const tableMember = { steel: "Q345", section: { table: "热轧窄翼缘H型钢", no: "HN400X200" }, N: -800, lengths: { x: 6000, y: 3000 } };
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
  await open('5" pipe\nsteel');
  await says(page, ".answer > .detail:not([hidden]) .verdict", "GB 50017-2017");
  await addressTells(page, "case", '5\\" pipe\\nsteel');
});

inChromium(walk)("names and sizes that look like options, and only what has an answer is kept", "view=own&lang=en&style=rect&sizes=100,200&name=--json", async (page) => {
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
  assert.deepEqual(member.faults, []);
  await member.close();
  await show(page, "view=store&lang=en");
  await page.click('[aria-label="Delete --json"]');
  await says(page, ".log", '"--json": deleted');
});

walk("lattice columns and choosing", "view=lattice&lang=en", async (page) => {
  await says(page, ".figures", "Limb 2");
  await page.select("select", "4");
  await says(page, ".figures", "Limb 4");
  await show(page, "view=choose&lang=en");
  await says(page, '[role="status"]', "sections tried");
  await page.click("::-p-text(Check)");
  await ready(page);
  await says(page, ".verdict", "passes");
});

walk("choosing among own sections: a style with a range, a fault at its size, and the section found as a member", `view=choose&lang=en&tables=-&styles=${encodeURIComponent('{"style": "box", "b": [200, 400, 50], "h": 400, "t": 16}')}`, async (page) => {
  const choose = '::-p-xpath(//button[. = "Choose"])';
  await says(page, '.answer [role="status"]', "5 sections tried");
  await page.type('input[aria-label="h from"]', "x");
  await page.click(choose);
  await says(page, ".formside .fault", "h is not possible");
  assert.equal(await page.$$eval('[aria-invalid="true"]', (all) => new Set(all.map((each) => each.ariaLabel.split(" ")[0])).size), 1);
  await page.focus('input[aria-label="h from"]');
  await page.keyboard.press("Backspace");
  await page.click("::-p-text(Add a style)");
  await page.click(choose);
  await says(page, '.answer [role="status"]', "6 sections tried");
  await page.click('.answer ::-p-xpath(//button[. = "Check"])');
  await ready(page);
  await addressTells(page, "case", '"sizes":[');
  await says(page, ".verdict", "passes");
});

test("a damaged link opens no example with a verdict", async () => {
  context = await browser.createBrowserContext();
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

walk("code tables: the asked cell is marked", "view=code&lang=en", async (page) => {
  await says(page, ".big", "295");
  await says(page, ".marked", "295");
  await fill(page, "GRADE", "Q999");
  await says(page, ".fault", "Q999");
});

inChromium(walk)("the own store goes out and comes back, and a broken file changes nothing", "view=store&lang=en", async (page) => {
  const add = ["store", "add", "矩形截面", "--set", "No.=P1", "--set", "b(mm)=20", "--set", "h(mm)=300"];
  assert.equal((await run(page, add)).status, 0);
  const { files } = await run(page, ["store", "export", "矩形截面", "--to", "o.KDB"]);
  assert.ok(files["o.KDB"].length !== 0);
  await drop(page, file("broken.KDB", "no store at all"));
  await says(page, ".log .fault", "broken.KDB".slice(0, 6));
  assert.match((await run(page, ["rows", "矩形截面", "--json"])).out, /"P1"/);
  const devtools = await page.createCDPSession();
  await devtools.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: folder, browserContextId: context.id });
  await page.click('::-p-xpath(//button[. = ".xlsx"])');
  await says(page, ".log", "store.xlsx");
  for (let i = 0; i < 200 && !existsSync(join(folder, "store.xlsx")); ++i) await new Promise((done) => setTimeout(done, 50));
  await page.click('::-p-xpath(//button[. = ".csv"])');
  await says(page, ".log", "store.zip");
  await run(page, ["store", "delete", "矩形截面", "P1"]);
  await drop(page, join(folder, "store.xlsx"));
  await says(page, ".log", "矩形截面");
  assert.match((await run(page, ["rows", "矩形截面", "--json"])).out, /"P1"/);
});

const add = (no) => ["store", "add", "矩形截面", "--set", `No.=${no}`, "--set", "b(mm)=20", "--set", "h(mm)=300"];
async function keptRows(page) {
  const { out } = await run(page, ["rows", "矩形截面", "--json"]);
  return JSON.parse(out).rows.map((row) => row.cells[0]).filter((no) => /^(P|T)\d+$/.test(no)).sort();
}

// A browser that gives the page no more room: the sentence is the answer, and what was kept stays. Pages that are
// opened from a disk have no quota of their own; a browser goes by the one that it has first asked for.
inChromium(test)("storage that is full", async () => {
  const server = createServer((_, answer) => answer.setHeader("content-type", "text/html").end(readFileSync(kPage)));
  await new Promise((done) => server.listen(0, "127.0.0.1", done));
  const origin = `http://127.0.0.1:${server.address().port}`;
  const inBrowser = async (use) => {
    const one = await start({ userDataDir: join(folder, "full") });
    const devtools = await (await one.newPage()).createCDPSession();
    await use(() => openPage(one, "view=own&lang=en", undefined, `${origin}/`), devtools).finally(() => one.close());
  };
  await inBrowser(async (open) => assert.equal((await run(await open(), add("P1"))).status, 0));
  await inBrowser(async (open, devtools) => {
    await devtools.send("Storage.overrideQuotaForOrigin", { origin, quotaSize: 1000 });
    const page = await open();
    const answer = await run(page, add("P2"));
    assert.deepEqual([answer.status, answer.out, answer.err], [3, "", "orv3cal: your own store: not written, the disk is full; export the own store before you close the browser\n"]);
    await fill(page, "Name to keep it by", "W1");
    await page.click("::-p-text(Keep in own store)");
    await says(page, ".fault", "the disk is full");
    await page.reload();
    await ready(page);
    assert.deepEqual([await keptRows(page), page.faults], [["P1"], []]);
  });
  server.closeAllConnections();
  server.close();
});

// A kept store that is none: the command's sentence stands in the view, and the store can be replaced.
test("a kept store that is damaged", async () => {
  context = await browser.createBrowserContext();
  const page = await openPage(context, "view=store&lang=en");
  assert.equal((await run(page, add("P1"))).status, 0);
  await page.evaluate(() => new Promise((done) => {
    indexedDB.open("orv3cal").onsuccess = ({ target }) => {
      const change = target.result.transaction("stores", "readwrite");
      change.objectStore("stores").put({ version: 1, bytes: new Uint8Array([1, 2, 3]) }, "own");
      change.objectStore("stores").put(1, "version");
      change.oncomplete = done;
    };
  }));
  const { err } = await run(page, ["tables"]);
  assert.match(err, /KvbSystemJmDataBase.KDB/);
  for (const view of ["sections", "choose", "store"]) {
    await show(page, `view=${view}&lang=en`);
    await says(page, ".fault", err.trim().replace("orv3cal: ", ""));
  }
  await context.close();
});

// A browser that has dropped its database, as after a full disk: an empty store is not passed off as one's own.
walk("a store that the browser has lost", "view=store&lang=en", async (page) => {
  assert.equal((await run(page, add("P1"))).status, 0);
  await page.evaluate(() => new Promise((done) => {
    indexedDB.open("orv3cal").onsuccess = ({ target }) => {
      const change = target.result.transaction("stores", "readwrite");
      change.objectStore("stores").clear();
      change.oncomplete = done;
    };
  }));
  await page.reload();
  await says(page, ".lost", "The browser has lost your own store");
  await page.click(".lost button");
  await page.reload();
  await ready(page);
  assert.equal(await page.$(".lost"), null);
});

// A browser that lets pages keep nothing: the catalogue is there, and a save says what it lacks.
inChromium(test)("storage that is forbidden", async () => {
  const profile = join(folder, "profile");
  mkdirSync(join(profile, "Default"), { recursive: true });
  writeFileSync(join(profile, "Default/Preferences"), JSON.stringify({ profile: { default_content_setting_values: { cookies: 2 } } }));
  const blocked = await start({ userDataDir: profile });
  try {
    const page = await openPage(blocked, "view=sections&lang=zh&table=热轧普通工字钢");
    await says(page, ".detail h2", "I10");
    await show(page, "view=store&lang=zh");
    await says(page, ".warn", "此浏览器不允许本页保存数据");
    await drop(page, file("p.csv", "No.,b(mm),h(mm)\nP1,20,300\n"));
    await says(page, ".log", "请给出 所选的表");
    await page.select("select", "矩形截面");
    await drop(page, file("p.csv", "No.,b(mm),h(mm)\nP1,20,300\n"));
    await says(page, ".log .fault", "浏览器不允许本页保存数据");
    assert.deepEqual(await keptRows(page), []);
    assert.deepEqual(page.faults, []);
  } finally {
    await blocked.close();
  }
});

test("two tabs that save at once keep both rows; a tab closed while it saves keeps a whole store", async () => {
  context = await browser.createBrowserContext();
  const pages = [await openPage(context, "view=store&lang=en"), await openPage(context, "view=store&lang=en")];
  await Promise.all(pages.flatMap((page, i) => [0, 1, 2].map((j) => run(page, add(`T${i}${j}`)))));
  await pages[0].evaluate((line) => void window.orv3cal.run(line), add("late"));
  await pages[0].close();
  assert.deepEqual(await keptRows(pages[1]), ["T00", "T01", "T02", "T10", "T11", "T12"]);
  await context.close();
});

for (const [lang, theme] of [["en", "light"], ["zh", "dark"]]) {
  test(`no view has a fault that axe finds, ${lang}, ${theme}`, async () => {
    context = await browser.createBrowserContext();
    const page = await openPage(context, `lang=${lang}&theme=${theme}`);
    await page.evaluate(kAxe);
    for (const view of kViews) {
      await show(page, `view=${view}&lang=${lang}&theme=${theme}`);
      const faults = await page.evaluate(async () => (await window.axe.run(document, { iframes: false })).violations.map((each) => `${each.id}: ${each.nodes.map((node) => node.html).slice(0, 3).join(" ")}`));
      assert.deepEqual(faults, [], view);
    }
    await context.close();
  });
}

for (const width of [390, 1920]) {
  walk(`at ${width} px nothing is wider than the window`, "lang=zh", async (page) => {
    for (const view of kViews) {
      await show(page, `view=${view}&lang=zh`);
      assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), view);
    }
  }, [width, 844]);
}

// What has the focus, and whether its user sees that.
const focused = (page) => page.evaluate(() => {
  const at = document.activeElement;
  if (!at || at === document.body) return null;
  const { left, top, right, bottom, width, height } = at.getBoundingClientRect();
  const isSeen = Math.min(width, height) > 2 && right > 0 && bottom > 0 && left < innerWidth && top < innerHeight;
  const name = at.getAttribute("aria-label") ?? at.labels?.[0]?.textContent ?? at.textContent;
  return `${at.tagName} ${name.trim().slice(0, 40)}${isSeen && getComputedStyle(at).outlineStyle !== "none" ? "" : " (unseen)"}`;
});

// Those of the tab key, until it leaves the page or comes round.
async function stops(page) {
  await page.focus(".ways button");
  const list = [];
  for (let at = await focused(page); at !== null && at !== list[0]; at = await focused(page)) {
    list.push(at);
    await page.keyboard.press("Tab");
  }
  return list;
}

// So many of the way back, from where that has led; the page itself may be one between the last and the first.
async function stopsBack(page, count) {
  const list = [];
  await page.keyboard.down("Shift");
  for (let i = 0; i <= count && list.length < count; ++i) {
    await page.keyboard.press("Tab");
    const at = await focused(page);
    if (at !== null) list.unshift(at);
  }
  await page.keyboard.up("Shift");
  return list;
}

inChromium(walk)("by keys alone: the focus is seen at every stop, both ways, and a group is one", "lang=en", async (page) => {
  for (const view of kViews) {
    await show(page, `view=${view}&lang=en`);
    const list = await stops(page);
    assert.deepEqual(list.filter((each) => each.includes("(unseen)")), [], view);
    assert.deepEqual(await stopsBack(page, list.length), list, view);
    assert.equal(list.filter((each) => each.startsWith("A ")).length, view === "sections" ? 2 : 1, view); // views, tables
  }
});
