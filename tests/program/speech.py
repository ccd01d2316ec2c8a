"""A learner listens: what the desktop's loudspeaker plays is recorded from a sound server that has no device."""

import array
import os
import signal
import time

from cases import ProgramCase, vocabulary

RATE = 8000  # samples of two bytes in a second
AUDIBLE = 500  # of 32768
LONG = " and ".join(("the captain of a steamboat", "the bird in the hand", "a very long word") * 4)
QUIZ = "Question and Answer - long"
QUESTION = "Read the question aloud"


class SpeechCase(ProgramCase):
    def setUp(self):
        super().setUp()
        self._record = self.home / "loudspeaker.raw"
        self._service = self.desktop.runtime / "speech-dispatcher" / "pid" / "speech-dispatcher.pid"
        self.addCleanup(self._end_service)

    def _start_loudspeaker(self):
        self.desktop.start_other("pulseaudio", "--exit-idle-time=-1", "-n", "--load=module-native-protocol-unix",
                                 "--load=module-null-sink sink_name=silent")
        record = ("parec", "--device=silent.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1")
        self.desktop.wait(lambda: self.desktop.succeeds("pactl", "info"), "the sound server")
        self.desktop.start_other(*record, "--raw", self._record)
        self.desktop.wait(lambda: self._length() > 0, "the recording")

    def _end_service(self):
        if self._service.exists():
            os.kill(int(self._service.read_text()), signal.SIGTERM)

    def _length(self):
        return self._record.stat().st_size // 2 * 2 if self._record.exists() else 0

    def _loudest(self, start):
        samples = array.array("h", self._record.read_bytes()[start:self._length()])
        return max(map(abs, samples), default=0)

    def _open_list(self):
        file = self.home / "long.gla"
        file.write_bytes(vocabulary([(LONG, "der Vogel"), ("dog", "Hund")]))
        self.open(file)

    def test_words_are_read_until_the_quiz_ends(self):
        if "ASAN_OPTIONS" in os.environ:
            self.skipTest("taking in ten thousand voices takes minutes under the sanitizers")
        self._start_loudspeaker()
        self._open_list()
        self.assertEqual(self._loudest(0), 0, "nothing is heard before the quiz")
        self.open_dialog(QUIZ, "alt+q", "q")
        self.desktop.key("ctrl+r")
        self._expect_reading()

    def _expect_reading(self):
        """Leaves the quiz before the question is read to its end, which takes half a minute."""
        start = self._length()
        self.desktop.wait(lambda: self._loudest(start) > AUDIBLE, "the question to be heard")
        self.assertTrue(self.desktop.find("push button", QUESTION))
        self.desktop.key("Escape")
        self.expect_active("frame")
        time.sleep(1)  # what the sound server still holds
        start = self._length()
        self.desktop.wait(lambda: self._length() > start + 4 * RATE, "two more seconds to be recorded")
        self.assertLess(self._loudest(start), AUDIBLE, "still reading")
