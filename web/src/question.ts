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

  // `ask` answers with what draws its answer; `isAsked` tells it whether that is still wanted.
  constructor(private readonly view: HTMLElement, ask: (isAsked: () => boolean) => Promise<() => void>) {
    drawn.add(this);
    this.run = latest(async () => {
      const mine = this.number;
      const isAsked = () => mine === this.number && view.isConnected;
      try {
        return { isAsked, draw: await ask(isAsked) };
      } catch (error) {
        return { isAsked, draw: () => view.replaceChildren(noAnswer(error instanceof Error ? error.message : String(error))) };
      }
    }, ({ isAsked, draw }) => {
      if (!isAsked()) return;
      this.mark(false);
      draw();
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

  private mark(waiting: boolean): void {
    this.view.classList.toggle("waiting", waiting);
    this.view.inert = waiting;
  }
}
