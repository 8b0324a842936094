declare module "inside:words" {
  const words: Record<string, Record<string, [string, string, string, string]>>;
  export default words;
}
declare module "inside:*" {
  const packed: string;
  export default packed;
}
declare module "*.csv" {
  const text: string;
  export default text;
}
