// Loads what the game is made of, and lays it out for it.

/// The bytes of a file, which are told to `add` as they come.
async function fetchBytes(url, add) {
  const response = await fetch(url);
  if (!response.ok)
    throw new Error(`${url} is missing (${response.status}).`);
  const parts = [];
  for (const reader = response.body.getReader();;) {
    const { done, value } = await reader.read();
    if (done)
      return new Blob(parts).arrayBuffer();
    parts.push(value);
    add(value.length);
  }
}

function loadScript(url) {
  return new Promise((loaded, failed) => {
    const script = document.createElement('script');
    script.src = url;
    script.onload = loaded;
    script.onerror = () => failed(new Error(`${url} is missing.`));
    document.head.append(script);
  });
}

/// A wave file of 16 bits with those samples.
function waveFile(sound) {
  const channels = sound.numberOfChannels;
  const samples = new Int16Array(sound.length * channels);
  for (let c = 0; c < channels; ++c) {
    const from = sound.getChannelData(c);
    for (let i = 0; i < from.length; ++i)
      samples[i * channels + c] = Math.max(-32768, Math.min(32767, Math.round(from[i] * 32767)));
  }
  const header = new DataView(new ArrayBuffer(44));
  const text = (at, letters) => [...letters].forEach((letter, i) => header.setUint8(at + i, letter.charCodeAt(0)));
  text(0, 'RIFF');
  header.setUint32(4, 36 + samples.byteLength, true);
  text(8, 'WAVEfmt ');
  header.setUint32(16, 16, true);
  header.setUint16(20, 1, true);
  header.setUint16(22, channels, true);
  header.setUint32(24, sound.sampleRate, true);
  header.setUint32(28, sound.sampleRate * channels * 2, true);
  header.setUint16(32, channels * 2, true);
  header.setUint16(34, 16, true);
  text(36, 'data');
  header.setUint32(40, samples.byteLength, true);
  return new Blob([header, samples]).arrayBuffer();
}

const SOUND_RATE = 22050; // of all the game's sounds, so that none is converted

/// A sound that the browser cannot decode is as one that is missing: the game is silent there.
async function decodeSound(bytes) {
  const decoder = new OfflineAudioContext(1, 1, SOUND_RATE);
  return waveFile(await decoder.decodeAudioData(bytes));
}

/// Loads from that folder, whose files.json lists [name, size in bytes] of each file. What is there stays loaded.
export function makeLoader(folder) {
  let scriptLoaded = false;

  async function loadFile(name, add) {
    const bytes = await fetchBytes(folder + name, add);
    return name.endsWith('.ogg') ? [name.replace('.ogg', '.wav'), await decodeSound(bytes)] : [name, bytes];
  }

  function lay(files, system) {
    for (const [name, bytes] of files) {
      system.mkdirTree('/' + name.split('/').slice(0, -1).join('/'));
      system.writeFile('/' + name, new Uint8Array(bytes));
    }
  }

  return {
    /// Data files that do not come are left out, for the game itself to tell; without the program there is none.
    async load(showProgress) {
      const response = await fetch(folder + 'files.json');
      if (!response.ok)
        throw new Error('There is no game on this server.');
      const list = await response.json();
      const total = list.reduce((sum, [, bytes]) => sum + bytes, 0);
      let done = 0;
      const add = (bytes) => showProgress(done += bytes, total);
      const data = list.map(([name]) => name).filter((name) => !name.startsWith('tervalis.'));
      const [program, results] = await Promise.all([
        fetchBytes(folder + 'tervalis.wasm', add),
        Promise.allSettled(data.map((name) => loadFile(name, add))),
      ]);
      if (!scriptLoaded)
        await loadScript(folder + 'tervalis.js');
      scriptLoaded = true;
      results.filter(({ reason }) => reason).forEach(({ reason }) => console.info(reason.message));
      const files = results.filter(({ value }) => value).map(({ value }) => value);
      return { program, lay: (system) => lay(files, system) };
    },
  };
}
