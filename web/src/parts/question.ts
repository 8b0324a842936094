// What a view asks of the command. What stands in the view is the answer to the question as it is now: with every
// change of what is asked it is pale and cannot be used until the new answer is there, and an answer to what is no
// longer asked is dropped.
import { latest, noAnswer } from "./dom";

const drawn = new Set<Question>();

// Asks once more what the drawn views ask: the own store has changed.
export function askAgain(): void {
  for (const question of drawn) question.again();
}

export class Question {
  private number = 0;
  private isOpen = false; // whether anything is asked
  private readonly run: () => Promise<void>;

  // `ask` answers with what draws its answer; `isAsked` tells it whether that is still wanted. `marked` is told when
  // the view goes pale and when it is so no longer.
  constructor(private readonly view: HTMLElement, ask: (isAsked: () => boolean) => Promise<() => void>, private readonly marked: () => void = () => {}) {
    drawn.add(this);
    const failed = (error: unknown) => view.replaceChildren(noAnswer(error instanceof Error ? error.message : String(error)));
    this.run = latest(async () => {
      const mine = this.number;
      const isAsked = () => mine === this.number && this.isOpen && view.isConnected; // one that waited is dropped too
      return { isAsked, draw: await ask(isAsked).catch((error) => () => failed(error)) };
    }, ({ isAsked, draw }) => {
      if (!isAsked()) return;
      try {
        draw();
      } catch (error) {
        failed(error);
      }
      this.mark(false);
    });
  }

  // What is asked has changed, and will be asked when it is known.
  outdate(): void {
    ++this.number;
    this.isOpen = true;
    this.mark(true);
  }

  // What is asked has changed and will not be asked; what the view shows then is no answer.
  drop(): void {
    ++this.number;
    this.isOpen = false;
    this.mark(false);
  }

  // Asks what is asked now.
  ask(): Promise<void> {
    this.outdate();
    return this.run();
  }

  again(): void {
    if (!this.view.isConnected) drawn.delete(this);
    else if (this.isOpen) void this.ask();
  }

  get isWaiting(): boolean {
    return this.view.inert;
  }

  private mark(waiting: boolean): void {
    this.view.classList.toggle("waiting", waiting);
    this.view.inert = waiting;
    this.marked();
  }
}
