"""Reads a score (its rules are at the head of `pond.score`) into notes: (instrument, start, length, hertz)."""
import pathlib

SEMITONES = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}


def hertz(name):
    """The pitch of a name such as F#4; A4 is 440."""
    sharp = name[1] == "#"
    return 440 * 2 ** ((SEMITONES[name[0]] + sharp) / 12 + int(name[1 + sharp:]) - 4)


class Score:
    """`notes` in eighths from the start, `eighth` in seconds, `seconds` the length of the whole."""

    def __init__(self, path):
        self.chords, self.parts, self.notes, self.bars = {}, {}, [], 0
        part = None
        for line in pathlib.Path(path).read_text().splitlines():
            word, _, rest = line.split(" #")[0].strip().partition(" ")
            if word == "eighths-a-minute":
                self.eighth = 60 / int(rest)
            elif word == "eighths-a-bar":
                self.bar = int(rest)
            elif word == "chord":
                name, _, voices = rest.partition(":")
                self.chords[name.strip()] = [[hertz(n) for n in voice.split()] for voice in voices.split("/")]
            elif word == "part":
                part = self.parts[rest] = {}
            elif word == "play":
                for name in rest.split():
                    self._play(self.parts[name])
            elif word and not word.startswith("#"):
                part[word] = [bar.split() for bar in rest.split("|")]
        self.seconds = self.bars * self.bar * self.eighth

    def _play(self, part):
        count = len(part["chords"])
        for instrument, bars in part.items():
            if len(bars) != count:
                raise ValueError(f"{instrument}: {len(bars)} bars beside {count} of chords")
            for number, bar in enumerate(bars):
                start = (self.bars + number) * self.bar
                (self._chords if instrument == "chords" else self._line)(instrument, start, bar)
        self.bars += count

    def _line(self, instrument, start, bar):
        at = start
        for word in bar:
            name, _, eighths = word.rpartition(".")
            if name != "-":
                self.notes.append((instrument, at, int(eighths), hertz(name)))
            at += int(eighths)
        if at != start + self.bar:
            raise ValueError(f"{instrument}: bar {start // self.bar + 1} is not full")

    def _chords(self, _, start, bar):
        share = self.bar // len(bar)
        for place, name in enumerate(bar):
            at = start + place * share
            bass, pad, broken = self.chords[name]
            self.notes.append(("bass", at, share, bass[0]))
            self.notes += [("pad", at, share, pitch) for pitch in pad]
            self.notes += [("marimba", at + i, 1, pitch) for i, pitch in enumerate(broken[:share])]
