// Walks through the own store: imports, exports, full and lost storage.
import assert from "node:assert/strict";
import { existsSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { createServer } from "node:http";
import { join } from "node:path";
import { test } from "node:test";
import { fill, kPage, openPage, ready, says, show, start } from "./browser.mjs";
import { browser, drop, file, folder, inChromium, run, walk } from "./walks.mjs";

inChromium(walk)("the own store goes out and comes back, and a broken file changes nothing", "view=store&lang=en", async (page, context) => {
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
  for (let i = 0; i < 200 && !existsSync(join(folder, "store.zip")); ++i) await new Promise((done) => setTimeout(done, 50));
  for (const name of ["store.xlsx", "store.zip"]) {
    await run(page, ["store", "delete", "矩形截面", "P1"]);
    await drop(page, join(folder, name));
    await says(page, ".log", "矩形截面");
    assert.match((await run(page, ["rows", "矩形截面", "--json"])).out, /"P1"/, name);
  }
  const bytes = readFileSync(join(folder, "store.zip"));
  bytes[bytes.indexOf("300")] ^= 1;
  await drop(page, file("damaged.zip", bytes));
  await says(page, ".log .fault", "damaged.zip: right would be an archive");
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
  const context = await browser.createBrowserContext();
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
walk("a store that the browser has lost", "view=store&lang=en", async (page, context) => {
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
  const context = await browser.createBrowserContext();
  const pages = [await openPage(context, "view=store&lang=en"), await openPage(context, "view=store&lang=en")];
  await Promise.all(pages.flatMap((page, i) => [0, 1, 2].map((j) => run(page, add(`T${i}${j}`)))));
  await pages[0].evaluate((line) => void window.orv3cal.run(line), add("late"));
  await pages[0].close();
  assert.deepEqual(await keptRows(pages[1]), ["T00", "T01", "T02", "T10", "T11", "T12"]);
  await context.close();
});
