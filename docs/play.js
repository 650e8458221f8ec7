// Plays the game on this page, where a web server offers it: loads it and begins and ends it. What lies in game/ is built
// by web.sh; the page that comes with the desktop program has none and offers no play.

import { makeLoader } from './load.js';
import { makeStage } from './stage.js';

const byId = (id) => document.getElementById(id);

/// A module of one function that adds vectors, which only a browser with the instructions takes.
const VECTORS = new Uint8Array([0, 97, 115, 109, 1, 0, 0, 0, 1, 5, 1, 96, 0, 1, 123, 3, 2, 1, 0, 10, 10, 1, 8, 0, 65, 0,
  253, 15, 253, 98, 11]);

function whatIsMissing() {
  if (typeof WebAssembly !== 'object' || !WebAssembly.validate(VECTORS))
    return 'This browser cannot play Tervalis: it lacks WebAssembly with SIMD. Any browser made since 2023 has it.';
  if (!byId('canvas').getContext || !byId('canvas').getContext('2d'))
    return 'This browser cannot play Tervalis: it has no canvas to draw on.';
  return null;
}

const hasKeyboard = () => matchMedia('(any-pointer: fine)').matches || navigator.maxTouchPoints === 0;

function say(text) {
  byId('message').textContent = text;
  byId('message').hidden = text === '';
}

const storage = {
  loadText(name) {
    try {
      return localStorage.getItem(name);
    } catch {
      return null; // forbidden
    }
  },
  storeText(name, text) {
    try {
      localStorage.setItem(name, text);
      return true;
    } catch {
      return false; // full or forbidden
    }
  },
};

/// Runs `play` if no other page of this browser does, until its promise is kept.
async function aloneInBrowser(play) {
  if (!navigator.locks)
    return play();
  return navigator.locks.request('Tervalis', { ifAvailable: true }, (lock) => {
    if (lock)
      return play();
    say('Tervalis is being played in another window of this browser.');
  });
}

function showProgress(done, total) {
  const inMegabytes = (bytes) => (bytes / 1e6).toFixed(1);
  byId('progress').value = done / total;
  byId('bytes').textContent = `${inMegabytes(done)} of ${inMegabytes(total)} MB`;
}

/// Begins the game; the promise is kept when it has ended.
function run(files, stage) {
  return new Promise((ended, failed) => {
    const module = {
      canvas: byId('canvas'),
      wasmBinary: files.program,
      page: { ...storage, ...stage.page, showMessage: say },
      print: (line) => console.log(line),
      printErr: (line) => console.info(line),
      preRun: [() => files.lay(module.FS)],
      onRuntimeInitialized: () => stage.begin(module),
      onExit: ended,
      onAbort: (reason) => failed(new Error(String(reason))),
    };
    window.Tervalis(module).catch(failed);
  });
}

async function play(loader, stage) {
  say('');
  document.body.classList.add('loading');
  try {
    const files = await loader.load(showProgress);
    document.body.classList.remove('loading');
    await run(files, stage);
  } catch (error) {
    say(`The game cannot be started. ${error.message}`);
  } finally {
    document.body.classList.remove('loading');
    stage.end();
  }
}

/// How the files of a release end, and for whom they are.
const DOWNLOADS = [
  ['-x86_64-setup.exe', 'Windows'],
  ['-i686-setup.exe', 'Windows, 32 bits'],
  ['_amd64.deb', 'Debian'],
  ['.tar.gz', 'Sources'],
];

async function offerDownloads() {
  const response = await fetch('downloads/files.json');
  const names = response.ok ? (await response.json()).map(([name]) => name) : [];
  for (const [ending, system] of DOWNLOADS)
    for (const name of names.filter((each) => each.endsWith(ending))) {
      const link = document.createElement('a');
      link.href = `downloads/${name}`;
      link.textContent = system;
      byId('downloads').append(' ', link);
      byId('downloads').hidden = false;
    }
}

function offerPlay() {
  const missing = whatIsMissing();
  byId('start').hidden = false;
  byId('play').disabled = missing !== null;
  if (missing)
    return say(missing);
  byId('touch').hidden = hasKeyboard();
  const stage = makeStage(document);
  const loader = makeLoader('game/');
  byId('play').addEventListener('click', () => aloneInBrowser(() => play(loader, stage)));
}

offerPlay();
offerDownloads().catch((error) => console.info(error.message)); // the game can be played all the same
