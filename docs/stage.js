// The place where the game is played: its picture, full screen, focus and touch.

const SWIPE = 24; // CSS pixels
const [UP, DOWN, LEFT, RIGHT] = [0, 1, 2, 3];

/// Where the game has its canvas, and what it asks of the page. One game at a time.
export function makeStage(document) {
  const window = document.defaultView;
  const stage = document.getElementById('stage');
  const canvas = document.getElementById('canvas');
  const frame = document.createElement('canvas');
  let game = null; // the running program
  let isAside = false; // the game waits while the page is shown
  let wantsFullScreen = false;

  /// As large as fits with its shape kept, in whole pixels of the screen.
  function fit() {
    const ratio = window.devicePixelRatio;
    const room = { width: stage.clientWidth * ratio, height: stage.clientHeight * ratio };
    const scale = Math.min(room.width / frame.width, room.height / frame.height);
    canvas.style.width = `${Math.round(frame.width * scale) / ratio}px`;
    canvas.style.height = `${Math.round(frame.height * scale) / ratio}px`;
    return scale;
  }

  /// Sharp to the nearest whole factor; from there the browser scales the canvas smoothly.
  function showFrame(pixels, width, height) {
    frame.width = width;
    frame.height = height;
    frame.getContext('2d').putImageData(new ImageData(pixels, width, height), 0, 0);
    draw();
  }

  function draw() {
    const factor = Math.max(1, Math.ceil(fit() - 0.5));
    if (canvas.width !== frame.width * factor || canvas.height !== frame.height * factor) {
      canvas.width = frame.width * factor;
      canvas.height = frame.height * factor;
    }
    const context = canvas.getContext('2d');
    context.imageSmoothingEnabled = false;
    context.drawImage(frame, 0, 0, canvas.width, canvas.height);
  }

  /// Where the browser asks for a key or click first, the next one does it.
  function coverScreen() {
    if (!wantsFullScreen || document.fullscreenElement || !stage.requestFullscreen)
      return;
    stage.requestFullscreen().then(() => window.navigator.keyboard?.lock?.(['Escape']), () => {});
  }

  function enterFullScreen() {
    wantsFullScreen = true;
    coverScreen();
  }

  function leaveFullScreen() {
    wantsFullScreen = false;
    if (document.fullscreenElement)
      document.exitFullscreen();
  }

  function setAside(aside) {
    isAside = false; // the event passes
    window.dispatchEvent(new Event(aside ? 'blur' : 'focus'));
    isAside = aside;
    document.body.classList.toggle('playing', !aside);
    document.body.classList.toggle('aside', aside);
  }

  function stepBack() {
    if (document.fullscreenElement)
      game._SwitchFullScreen();
    setAside(true);
  }

  function tap(touch) {
    const box = canvas.getBoundingClientRect();
    game._TapScreen((touch.clientX - box.left) * frame.width / box.width,
      (touch.clientY - box.top) * frame.height / box.height);
  }

  /// A swipe steers as soon as it is long enough, and again with each change of direction.
  function listenToTouch() {
    let from = null;
    let hasSwiped = false;
    const listen = (type, handle) => canvas.addEventListener(type, (event) => {
      event.preventDefault();
      handle(event.changedTouches[0]);
    }, { passive: false });
    listen('touchstart', (touch) => {
      from = touch;
      hasSwiped = false;
    });
    listen('touchmove', (touch) => {
      const dx = touch.clientX - from.clientX;
      const dy = touch.clientY - from.clientY;
      if (Math.max(Math.abs(dx), Math.abs(dy)) < SWIPE)
        return;
      const vertical = dy < 0 ? UP : DOWN;
      const horizontal = dx < 0 ? LEFT : RIGHT;
      game._SteerFirstPlayer(Math.abs(dx) > Math.abs(dy) ? horizontal : vertical);
      from = touch;
      hasSwiped = true;
    });
    listen('touchend', (touch) => hasSwiped || tap(touch));
  }

  /// Ahead of the game's own listeners: while the page is shown its keys and its focus are not the game's.
  function keepFromGame() {
    for (const type of ['keydown', 'keyup', 'keypress', 'focus', 'blur'])
      window.addEventListener(type, (event) => isAside && event.stopImmediatePropagation(), true);
  }

  function listen() {
    keepFromGame();
    listenToTouch();
    for (const type of ['keydown', 'mouseup', 'touchend'])
      window.addEventListener(type, coverScreen);
    window.addEventListener('resize', () => game && draw());
    document.addEventListener('fullscreenchange', () => {
      if (wantsFullScreen && !document.fullscreenElement && game)
        game._SwitchFullScreen(); // the browser's own key has left it
    });
    document.addEventListener('visibilitychange', () => {
      if (game && !isAside)
        window.dispatchEvent(new Event(document.hidden ? 'blur' : 'focus'));
    });
    window.addEventListener('pagehide', endGame);
    document.getElementById('fullscreen').addEventListener('click', () => game._SwitchFullScreen());
    document.getElementById('continue').addEventListener('click', () => setAside(false));
  }

  /// The page goes, and the game must have stored its settings before.
  function endGame() {
    try {
      game?._EndProgram();
    } catch (exit) { // which is how a program leaves
    }
  }

  listen();
  return {
    page: { showFrame, enterFullScreen, leaveFullScreen, stepBack },
    begin(program) {
      game = program;
      document.body.classList.add('playing');
      canvas.focus();
    },
    end() {
      game = null;
      isAside = false;
      leaveFullScreen();
      document.body.classList.remove('playing', 'aside');
    },
  };
}
