// Runs before the page's own scripts: lets the game begin with the seed 7 and does in its frames what `script` says, whose
// rows are those of a script for tools/tour: [frame, verb, argument...]. Keeps the pictures of the frames of a "shot".
Date.now = () => 7000;
window.shots = {};

const KEYS = { left: ['ArrowLeft', 37], up: ['ArrowUp', 38], right: ['ArrowRight', 39], down: ['ArrowDown', 40] };
const ACTIONS = {
  key(name) {
    const [code, keyCode] = KEYS[name];
    for (const type of ['keydown', 'keyup'])
      window.dispatchEvent(new KeyboardEvent(type, { key: code, code, keyCode, which: keyCode }));
  },
  click(x, y) {
    const canvas = document.getElementById('canvas');
    const box = canvas.getBoundingClientRect();
    const place = { clientX: box.left + x * box.width / 640, clientY: box.top + y * box.height / 480, bubbles: true };
    for (const type of ['mousemove', 'mousedown', 'mouseup'])
      canvas.dispatchEvent(new MouseEvent(type, place));
  },
};

let frame = -1; // the one that is being shown; the empty window comes first
const put = CanvasRenderingContext2D.prototype.putImageData;
CanvasRenderingContext2D.prototype.putImageData = function(...picture) {
  for (const [at, verb, name] of script)
    if (verb === 'shot' && at === frame - 1)
      window.shots[name] = document.getElementById('canvas').toDataURL();
  put.apply(this, picture);
  ++frame;
  for (const [at, verb, ...rest] of script)
    if (ACTIONS[verb] && at === frame)
      ACTIONS[verb](...rest);
};
