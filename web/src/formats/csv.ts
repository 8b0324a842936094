// CSV as the command writes it: cells split by commas, quoted where they must be.
export function csvRows(text: string): string[][] {
  const rows: string[][] = [];
  let row: string[] = [];
  let cell = "";
  let quoted = false;
  for (let i = text.charCodeAt(0) === 0xfeff ? 1 : 0; i < text.length; ++i) {
    const ch = text[i]!;
    if (quoted) {
      if (ch !== '"') cell += ch;
      else if (text[i + 1] === '"') cell += text[i++];
      else quoted = false;
    } else if (ch === '"') quoted = true;
    else if (ch === "," || ch === "\n") {
      row.push(cell);
      cell = "";
      if (ch === "\n") rows.push(row.splice(0));
    } else if (ch !== "\r") cell += ch;
  }
  if (cell !== "" || row.length > 0) rows.push([...row, cell]);
  return rows;
}

export function csvText(rows: string[][]): string {
  const cell = (text: string) => (/[",\r\n]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text);
  return rows.map((row) => row.map(cell).join(",") + "\n").join("");
}
