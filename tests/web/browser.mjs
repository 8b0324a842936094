// The page in a browser, as the tests use it: every request and every word on the console is kept. In Chromium;
// with ORV3CAL_BROWSER=firefox in Firefox.
import { existsSync } from "node:fs";
import { createRequire } from "node:module";
import { dirname, join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

export const kSource = join(dirname(fileURLToPath(import.meta.url)), "../..");
export const kPage = join(kSource, "build/web/orv3cal.html");
export const kNative = join(kSource, "build/release");

const require = createRequire(join(kSource, "web/package.json"));
const puppeteer = (await import(pathToFileURL(require.resolve("puppeteer-core")))).default;
export const kAxe = require("axe-core").source;

export const kFirefox = process.env.ORV3CAL_BROWSER === "firefox";
const kBrowsers = kFirefox ? ["/usr/bin/firefox-esr", "/usr/bin/firefox"]
  : ["/usr/bin/chromium", "/usr/bin/chromium-browser", "/usr/bin/google-chrome"];

export async function start(more = {}) {
  return puppeteer.launch({
    ...more,
    browser: kFirefox ? "firefox" : "chrome",
    executablePath: kBrowsers.find(existsSync),
    args: kFirefox ? [] : ["--no-sandbox", "--force-color-profile=srgb", "--font-render-hinting=none"],
    protocolTimeout: 600_000,
  });
}

// A tab with what it must not do in `faults`: requests to anywhere, errors and words on the console.
export async function openPage(context, hash = "view=sections&lang=en", size = [1280, 860], address = String(pathToFileURL(kPage))) {
  const page = await context.newPage();
  page.setDefaultTimeout(Number(process.env.PAGE_TIMEOUT ?? 120_000));
  page.faults = [];
  page.on("request", (request) => {
    if (!/^(file|blob|data|about):/.test(request.url()) && !request.url().startsWith(address)) page.faults.push(`request: ${request.url()}`);
  });
  page.on("console", (message) => page.faults.push(`console: ${message.text()}`));
  page.on("pageerror", (error) => page.faults.push(`error: ${error.message}`));
  await page.setViewport({ width: size[0], height: size[1] });
  await page.goto(`${address}#${hash}`);
  await ready(page);
  return page;
}

export async function ready(page) {
  await (await page.waitForSelector('main[aria-busy="false"]')).dispose();
}

export async function show(page, hash) {
  await page.evaluate((next) => {
    document.querySelector("main").setAttribute("aria-busy", "true");
    if (location.hash === `#${next}`) dispatchEvent(new Event("popstate")); // which the same address does not
    else location.hash = next;
  }, hash);
  await ready(page);
}

export async function textOf(page, selector) {
  return page.$eval(selector, (element) => element.textContent);
}

// Waits until the element's text has the words.
export async function says(page, selector, words) {
  await page.waitForFunction(
    (where, what) => [...document.querySelectorAll(where)].some((each) => each.textContent.includes(what)),
    {},
    selector,
    words,
  );
}

// Types into the field with that label instead of what stands there.
export async function fill(page, label, value) {
  const field = await page.waitForSelector(`::-p-xpath(//label[contains(., "${label}")]/..//input)`);
  await field.click({ count: 3 });
  await page.keyboard.press("Backspace");
  await field.type(value);
}
