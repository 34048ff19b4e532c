// Whether the schema holds for each line of standard input, one "true" or "false" a line: verdicts.js SCHEMA
const Ajv = require("ajv");
const fs = require("fs");

const holds = new Ajv().compile(JSON.parse(fs.readFileSync(process.argv[2], "utf8")));
for (const line of fs.readFileSync(0, "utf8").trimEnd().split("\n"))
  console.log(Boolean(holds(JSON.parse(line))));
