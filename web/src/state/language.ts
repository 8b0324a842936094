// The page's words in both languages.
import { state } from "./address";

export type Language = "zh" | "en";

export function language(): Language {
  const asked = state()["lang"] ?? (navigator.language.startsWith("zh") ? "zh" : "en");
  return asked === "zh" ? "zh" : "en";
}

export function say(zh: string, en: string): string {
  return language() === "zh" ? zh : en;
}
