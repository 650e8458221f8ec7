// The imports that page.h declares.
mergeInto(LibraryManager.library, {
  PageShowFrame__deps: ['$autoResumeAudioContext', '$dynCall'], // SDL's sound uses them without saying so
  PageShowFrame: function(pixels, width, height) {
    Module.page.showFrame(new Uint8ClampedArray(HEAPU8.buffer, pixels, 4 * width * height), width, height);
  },
  PageEnterFullScreen: function() {
    Module.page.enterFullScreen();
  },
  PageLeaveFullScreen: function() {
    Module.page.leaveFullScreen();
  },
  PageStepBack: function() {
    Module.page.stepBack();
  },
  PageShowMessage: function(text) {
    Module.page.showMessage(UTF8ToString(text));
  },

  PageLoadText__deps: ['malloc'],
  PageLoadText: function(name) {
    var text = Module.page.loadText(UTF8ToString(name));
    if (text === null)
      return 0;
    var bytes = lengthBytesUTF8(text) + 1;
    var copy = _malloc(bytes);
    stringToUTF8(text, copy, bytes);
    return copy;
  },
  PageStoreText: function(name, text) {
    return Module.page.storeText(UTF8ToString(name), UTF8ToString(text));
  },
});
