// extract_parts.js FILE: prints as JSON what the reader word-extractor finds in the parts of a binary document.
"use strict";

const WordExtractor = require("word-extractor");

new WordExtractor().extract(process.argv[2]).then(document => {
  const options = { includeFooters: false };
  console.log(JSON.stringify({
    body: document.getBody(),
    headers: document.getHeaders(options),
    footers: document.getFooters(),
    footnotes: document.getFootnotes(),
    endnotes: document.getEndnotes(),
    comments: document.getAnnotations(),
    boxes: document.getTextboxes({ includeHeadersAndFooters: false }),
  }));
}).catch(error => {
  console.error(String(error));
  process.exitCode = 1;
});
