"""A person at the program as it was built: starts it and uses its windows.

A plugin of the toolkit (Person.cpp) sees what the windows show. Where there is no display it has the
keyboard and the mouse too; on a display they are the display's own, moved by xdotool.
"""

import json
import os
import re
import subprocess
import threading
import time

LONGEST = 60  # seconds that a program may run
PATIENCE = 20  # seconds until something has come about


class NoDisplay:
    environment = {"QT_QPA_PLATFORM": "offscreen"}

    def __init__(self, program):
        self.click = lambda name: program.order("click", name)
        self.key = lambda keys: program.order("key", keys)
        self.type = lambda text: program.order("type", text)


class Display:
    environment = {name: value for name, value in os.environ.items() if name in ("DISPLAY", "XAUTHORITY")}

    def __init__(self, program):
        self.program = program

    def act(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True, timeout=PATIENCE)

    def click(self, name):
        self.act("mousemove", *self.program.see(name)["place"], "click", 1)

    def key(self, keys):
        self.act("key", keys.replace("PgDown", "Next"))

    def type(self, text):
        self.act("type", "--delay", 5, text)


class Program:
    """One run, to be ended with kill() whatever comes."""

    def __init__(self, binary, home, environment, hands):
        self.process = subprocess.Popen(
            [binary], cwd=home, encoding="utf-8",
            env={"HOME": str(home), "XDG_RUNTIME_DIR": str(home), "LC_ALL": "C.UTF-8", **environment},
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.watchdog = threading.Timer(LONGEST, self.process.kill)
        self.watchdog.start()
        self.hands = hands(self)

    def kill(self):
        self.watchdog.cancel()
        self.process.kill()
        self.process.communicate()

    def order(self, verb, about):
        """What the plugin answers; nothing if the program has ended meanwhile."""
        try:
            print(verb, about, file=self.process.stdin, flush=True)
        except BrokenPipeError:
            return {}
        return json.loads(self.process.stdout.readline() or "{}")

    def see(self, name):
        return self.order("see", name)

    def until(self, name, /, **facts):
        """Waits until that widget, or "front", shows all the facts."""
        end = time.monotonic() + PATIENCE
        while not facts.items() <= (seen := self.see(name)).items():
            if time.monotonic() > end or self.process.poll() is not None:
                raise AssertionError(f"{name} isn't {facts}, but {seen}; front: {self.see('front')}; "
                                     f"exit code and messages: {self.ending()}")
            time.sleep(0.02)

    def click(self, name):
        self.until("front", active=True)
        self.hands.click(name)

    def key(self, keys):
        self.until("front", active=True)
        self.hands.key(keys)

    def write(self, name, text):
        self.click(name)
        self.key("ctrl+a")
        self.hands.type(text)
        self.until(name, text=text)

    def ending(self):
        """Waits for the program's end: the exit code and the messages."""
        try:
            self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.process.kill()
            return "none", "it goes on"
        messages = self.process.communicate()[1]
        # What the toolkit says of itself without a display.
        messages = re.sub(r"^This plugin does not support .*\n", "", messages, flags=re.MULTILINE)
        return self.process.returncode, messages
