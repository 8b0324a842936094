// What a view keeps beside the address, as long as its entry of the history is there: steps back, a file that was
// dropped, what is unfolded. The view drawn anew, in another language or on the way back, finds it as it was.
import { entryNow } from "./address";

const all = new Map<string, unknown>();

export function kept<T>(name: string, first: () => T): T {
  const place = `${entryNow()} ${name}`;
  if (!all.has(place)) all.set(place, first());
  return all.get(place) as T;
}
