// What `check --json` answers, as far as the page reads it.
interface Check {
  name: string;
  clause: string;
  ratio: number | null;
  pass: boolean;
  steps?: string[];
}
export interface CheckJson {
  id?: string;
  code: string;
  pass: boolean;
  ratio?: number | null;
  utilisation?: number | null;
  governs: string;
  results?: Record<string, unknown>;
  given?: string[];
  checks?: Check[];
  warnings?: (string | { key: string; text: string })[];
  editions?: CheckJson[];
  combinations?: CheckJson[];
}
