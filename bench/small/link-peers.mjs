// What the link finders that browsers' programs use take for the texts of LinkTexts.h: prints
// nanoseconds by name. Usage: link-peers.mjs FOLDER_OF_PACKAGES
//
// A package that is missing or cannot be used is left out.

import {createRequire} from 'node:module';

const packages = createRequire(process.argv[2] + '/');
const finders = {};

function offer(name, make) {
  try {
    finders[name] = make();
  } catch {
    // Left out.
  }
}

offer('linkify-it', () => {
  const finder = packages('linkify-it')();
  return (text) => finder.match(text);
});
offer('linkifyjs', () => {
  const {find} = packages('linkifyjs');
  return (text) => find(text);
});
offer('autolinker', () => {
  const {Autolinker} = packages('autolinker');
  return (text) => Autolinker.parse(text, {});
});
offer('anchorme', () => {
  const {default: anchorme} = packages('anchorme');
  return (text) => anchorme.list(text);
});

const PROSE =
    'Some words about https://server.example/path?q=1, then example.com and (name@example.com); ' +
    'nothing in this sentence. ';
const HOSTILE = {
  'bare domains': ['', 'a.com '],
  'dots': ['', 'a.'],
  'hyphens': ['', 'a-'],
  'numbers': ['', '1.'],
  'underscores': ['', 'www.a_'],
  'ats': ['', '@'],
  'names': ['', 'a@'],
  'schemes': ['', '://'],
  'brackets': ['', '('],
  'unknown domains': ['', 'a.zz '],
  'international': ['', '\u00fc.zz '],
  'closing brackets': ['http://a.com/', ')'],
};

function ofSize([beginning, piece], size) {
  return beginning + piece.repeat(Math.ceil((size - beginning.length) / Buffer.byteLength(piece)));
}

/** Nanoseconds of one call: the median of several, after the compiler has seen the function. */
function timed(finder, text, budget) {
  const times = [];
  const end = performance.now() + budget;
  do {
    const start = performance.now();
    finder(text);
    times.push(performance.now() - start);
  } while (performance.now() < end);
  times.sort((a, b) => a - b);
  return times[Math.floor(times.length / 2)] * 1e6;
}

/** The same of a call too short for the clock. */
function timedMany(finder, text) {
  const many = 2000;
  return timed(() => {
           for (let i = 0; i < many; ++i) finder(text);
         }, text, 150) / many;
}

const results = {};
for (const [name, finder] of Object.entries(finders)) {
  results[`typed/${name}`] = timedMany(finder, 'https://server.example/path');
  results[`megabyte/${name}`] = timed(finder, ofSize(['', PROSE], 1_000_000), 0);
  for (const [text, pieces] of Object.entries(HOSTILE)) {
    results[`hostile/${name}/${text}/10000`] = timed(finder, ofSize(pieces, 10_000), 0);
  }
}
console.log(JSON.stringify(results));
