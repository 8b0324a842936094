// What the command tells of the catalogue: its tables, the rows of one, the styles of own sections.
import { told } from "./client";

export interface TableJson {
  name: string;
  source: string;
  family: string;
  rows: number;
}

export interface RowsJson {
  table: string;
  columns: { sign: string; name: string; title: string; type: string; key: boolean }[];
  rows: { cells: string[]; state: number }[];
}

export interface StyleJson {
  style: number;
  alias: string;
  table: string;
  shape: string;
  sizes: { sign: string; title: string; meaning: string }[];
}

export const tables = () => told<TableJson[]>(["tables"]);
export const rowsOf = (table: string) => told<RowsJson>(["rows"], table);
export const styles = () => told<StyleJson[]>(["styles"]);

export const isNumeric = ({ type }: RowsJson["columns"][number]): boolean => type !== "text" && type !== "char";

// Where the rows' numbers stand among their cells.
export const keyOf = (columns: RowsJson["columns"]): number => Math.max(0, columns.findIndex((column) => column.key));

// Sizes that a form begins with, by a style's alias.
export const kFirstSizes: Record<string, string> = {
  h: "300,400,20,10", box: "300,400,16", "flanged-cross": "300,400,200,250,10,16", rect: "100,200", hexagon: "60",
  triangle: "100,100", circle: "40", tube: "110,100", t: "10,300,16,95,95", "general-h": "10,400,20,16,95,95,145,145",
  l: "10,160,12,90", z: "10,200,12,12,60,60", channel: "10,200,12,12,65,65", cross: "10,200,95,95,95,95",
  "general-box": "300,400,16,16,12,12",
};
