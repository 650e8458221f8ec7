// Goes ahead of all other scripts. Stops the clock, which seeds the game, and does what `script` says, each action in its
// frame: [frame, verb, argument...], as tools/tour takes them. A click is a tap, and the key to the left a swipe. A "shot"
// keeps the picture.
Date.now = () => 7000;
window.shots = {};

function touch(type, x, y) {
  const target = document.getElementById('canvas');
  const box = target.getBoundingClientRect();
  const place = { clientX: box.left + x * box.width / 640, clientY: box.top + y * box.height / 480 };
  target.dispatchEvent(new TouchEvent(type, { changedTouches: [new Touch({ identifier: 0, target, ...place })] }));
}

const KEYS = { up: ['ArrowUp', 38], right: ['ArrowRight', 39], down: ['ArrowDown', 40] };
const ACTIONS = {
  key(name) {
    if (name === 'left') {
      touch('touchstart', 400, 200);
      touch('touchmove', 300, 220);
      return touch('touchend', 300, 220);
    }
    const [code, keyCode] = KEYS[name];
    for (const type of ['keydown', 'keyup'])
      window.dispatchEvent(new KeyboardEvent(type, { key: code, code, keyCode, which: keyCode }));
  },
  click(x, y) {
    touch('touchstart', x, y);
    touch('touchend', x, y);
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
