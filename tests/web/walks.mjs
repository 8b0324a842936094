// Walks: the page as its user goes through it, in a browser that has seen nothing.
import assert from "node:assert/strict";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { kFirefox, openPage, ready, start } from "./browser.mjs";

export const kViews = ["sections", "own", "lattice", "connections", "members", "choose", "code", "store"];

export let browser;
export const folder = mkdtempSync(join(tmpdir(), "orv3cal-page-"));

before(async () => {
  browser = await start();
});
after(async () => {
  await browser?.close();
  rmSync(folder, { recursive: true, force: true });
});

// Each walk without a request, an error or a word on the console. The steps get the page, and its browser for more.
export function walk(name, hash, steps, size) {
  test(name, async () => {
    const context = await browser.createBrowserContext();
    const page = await openPage(context, hash, size);
    await steps(page, context);
    assert.deepEqual(page.faults, []);
    await context.close();
  });
}

// What asks Chromium for more than a user could (where downloads go, a quota, what pages may keep, what a worker
// answers), or goes by keys out of the page, where Firefox has stops of its own.
export const inChromium = (run) => (kFirefox ? () => {} : run);

export function file(name, text) {
  const path = join(folder, name);
  writeFileSync(path, text);
  return path;
}

export async function drop(page, path, which = 0) {
  const inputs = await page.$$('input[type="file"]');
  await inputs[which].uploadFile(path);
}

// The address follows the keys by some tenths of a second.
export const address = (page) => page.evaluate(() => decodeURIComponent(location.hash.slice(1)));
export const addressTells = (page, key, words) =>
  page.waitForFunction((name, what) => (new URLSearchParams(location.hash.slice(1)).get(name) ?? "").includes(what), {}, key, words);

export const run = (page, argv, files = {}) => page.evaluate((line, given) => window.orv3cal.run(line, given), argv, files);

// The fields of a form change with what is chosen: the last select whose label begins so.
export async function pick(page, label, value) {
  const id = await page.$$eval("label", (all, words) => all.filter((each) => each.textContent.startsWith(words)).at(-1).htmlFor, label);
  await page.waitForFunction((place, want) => [...document.getElementById(place).options].some((each) => each.value === want), {}, id, value);
  await page.select(`#${id}`, value);
}

// Keeps back what the worker answers, until it is let go: what it posts later too by the way that it found before.
// Only Chromium lets a test into a worker.
export const hold = (page) => page.workers()[0].evaluate(() => {
  const post = self.postMessage.bind(self);
  let held = [];
  self.postMessage = (reply) => (held ? held.push(reply) : post(reply));
  self.letGo = () => {
    const replies = held;
    held = null;
    self.postMessage = post;
    replies.forEach((reply) => post(reply));
  };
});
export const letGo = (page) => page.workers()[0].evaluate(() => self.letGo());

export const tableMember = { steel: "Q345", section: { table: "热轧窄翼缘H型钢", no: "HN400X200" }, N: -800, lengths: { x: 6000, y: 3000 } };

export async function otherLanguage(page) {
  await page.evaluate(() => document.querySelector("main").setAttribute("aria-busy", "true"));
  await page.click('[data-key="language"]');
  await ready(page);
}
