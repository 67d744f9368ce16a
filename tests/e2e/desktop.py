"""A screen of the tests' own with a window manager, and the application on it, worked by keys and clicks."""
import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 60  # seconds until something that has to happen counts as failed; the machine may be busy
IDLE_TIME = 0.3  # seconds without work after which a program waits for its user
CLOSING_PATIENCE = 2  # seconds that a window may take to close before a key is pressed again
TOOLS = ("Xvfb", "openbox", "xdotool", "xprop", "xwininfo", "gm", "qpdf", "lowriter")
TITLE = "Tavrelion-PDF to Word Converter"


def wait_for(what, condition, patience=PATIENCE):
    """Waits until the condition gives something true, and returns that."""
    end = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"not within {patience} seconds: {what}")
        time.sleep(0.05)


def happens(condition, patience):
    """Whether the condition comes true in that time."""
    end = time.monotonic() + patience
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(0.05)
    return True


def processor_time(process):
    """Seconds of work of a process so far; 0 when it has ended."""
    try:
        fields = pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return 0
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def missing_tools():
    """What the tests need and this machine has not."""
    return [tool for tool in TOOLS if not shutil.which(tool)]


class Window:
    """A window as the screen shows it: its number and the size of its inside."""

    def __init__(self, number, width, height):
        self.number, self.width, self.height = number, width, height

    def __eq__(self, other):
        return self.number == other.number

    def __repr__(self):
        return f"window {self.number} ({self.width} x {self.height})"

    @property
    def is_main(self):
        return self.width >= 800

    @property
    def is_page(self):
        return 700 <= self.width < 800

    @property
    def is_progress(self):
        return 620 <= self.width < 700 and self.height >= 340

    @property
    def is_message(self):
        return not (self.is_main or self.is_page or self.is_progress)


class Desktop:
    """Xvfb and openbox. Everything that is started on it ends with it."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tavrelion-e2e-"))
        display = self.folder / "display"
        with open(display, "w") as number:
            self._screen = subprocess.Popen(
                ["Xvfb", "-displayfd", str(number.fileno()), "-screen", "0", "1600x1000x24", "-nolisten", "tcp"],
                pass_fds=[number.fileno()], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("a screen", lambda: display.read_text().strip())
        self.environment = {key: value for key, value in os.environ.items() if not key.startswith("QT_")}
        self.environment.update(DISPLAY=":" + display.read_text().strip(), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        self._manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
        wait_for("a window manager", lambda: "_NET_SUPPORTING_WM_CHECK" in self.run("xprop", "-root"))

    def close(self):
        for process in (self._manager, self._screen):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *command):
        """What the command prints; empty when it fails or waits in vain, as for a window that has just gone."""
        try:
            return subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                  text=True, check=False, timeout=PATIENCE).stdout
        except subprocess.TimeoutExpired:
            return ""

    def windows(self, title=f"^{TITLE}$"):
        """The visible windows of that title (a regular expression), in no order."""
        found = []
        for number in self.run("xdotool", "search", "--onlyvisible", "--name", title).split():
            size = re.search(r"Geometry: (\d+)x(\d+)", self.run("xdotool", "getwindowgeometry", number))
            if size:
                found.append(Window(number, int(size[1]), int(size[2])))
        return found

    def popup(self):
        """The menu or list that is open: a window that the window manager leaves alone. It takes the keys while it is up."""
        def find():
            for number in self.run("xdotool", "search", "--onlyvisible", "--class", "tavrelion").split():
                facts = self.run("xwininfo", "-id", number)
                if "Override Redirect State: yes" in facts:
                    return Window(number, *(int(re.search(rf"{side}: (\d+)", facts)[1]) for side in ("Width", "Height")))
            return None
        return wait_for("a menu or a list", find)

    def act(self, window, *command):
        """Brings the window to the front and goes on; a window that has gone is left in peace, and so are all others."""
        self.run("xdotool", "windowactivate", "--sync", window.number, *command)

    def keys(self, window, *keys):
        self.act(window, "key", "--clearmodifiers", "--delay", "20", *keys)

    def type(self, window, text):
        self.act(window, "type", "--clearmodifiers", "--delay", "5", text)

    def click(self, window, x, y):
        self.act(window, "mousemove", "--window", window.number, str(x), str(y), "click", "1")

    def popup_key(self, key):
        """Presses a key in the menu or list that is open."""
        self.popup()
        self.run("xdotool", "key", "--clearmodifiers", key)

    def popup_click(self, row, rows):
        """Clicks on one of so many rows of about one height of the menu or list that is open."""
        popup = self.popup()
        self.run("xdotool", "mousemove", "--window", popup.number, str(popup.width // 2),
                 str((2 * row + 1) * popup.height // (2 * rows)), "click", "1")

    def close_by_box(self, window):
        """As the cross in the title bar does, by the key of the window manager."""
        self.keys(window, "alt+F4")

    def minimise(self, window):
        self.run("xdotool", "windowminimize", "--sync", window.number)

    def save_picture(self, path):
        self.run("gm", "import", "-window", "root", str(path))


class Program:
    """The application with a home folder of its own."""

    def __init__(self, desktop, binary):
        self.desktop, self._binary = desktop, binary
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="home-", dir=desktop.folder))
        self.documents = self.home / "Documents"
        self.files = self.home / "in"
        runtime = self.home / "run"
        for folder in (self.documents, self.files, runtime, self.home / ".config"):
            folder.mkdir()
        runtime.chmod(0o700)
        (self.home / ".config" / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/Documents"\n')
        self._store_settings()
        self._environment = dict(desktop.environment, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / ".config"),
                                 XDG_RUNTIME_DIR=str(runtime))
        self._process = None

    def _store_settings(self):
        """The settings as the program stores them: English, each document offered, DOCX, no wizard, flowing text."""
        fields = {"language": 0, "launch": 2, "output path": 0, "format": 2, "progress window": 0, "wizard": 0, "mode": 3,
                  "images": 1, "character spacing": 1, "pages": 1, "method": 0, "page choice": 0, "prompt": 0,
                  "recent folder": self.files, "output folder": self.documents, "log": self.home / "Tavrelion.log",
                  "log flag": 0}
        record = "~:~".join(map(str, fields.values()))
        (self.documents / "docval.temp").write_bytes(f'"{record}"\r\n'.encode())

    def start(self, *arguments):
        self._process = self.start_another(*arguments)

    def start_another(self, *arguments):
        return subprocess.Popen([str(self._binary), *map(str, arguments)], env=self._environment,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def has_ended(self):
        return self._process.poll() is not None

    def exit_code(self):
        return self._process.wait(PATIENCE)

    def end(self):
        """Ends what was started here: the program, its workers, and a word processor that it opened."""
        for number in self.processes():
            try:
                os.kill(number, signal.SIGKILL)
            except ProcessLookupError:
                pass
        if self._process:
            self._process.wait()

    def processes(self, name=""):
        """Numbers of the processes with this program's home folder, of that name or of any."""
        found = []
        for folder in pathlib.Path("/proc").iterdir():
            if not folder.name.isdigit():
                continue
            try:
                words = (folder / "cmdline").read_bytes().split(b"\0")
                environment = (folder / "environ").read_bytes().split(b"\0")
            except OSError:
                continue
            if words[0].endswith(name.encode()) and f"HOME={self.home}".encode() in environment:
                found.append(int(folder.name))
        return found

    def wait_idle(self):
        """
        Waits until the program has nothing left to do but to wait for its user: neither it nor what it started takes
        processor time. While it still takes note that a dialog has ended it lets keys and clicks pass.
        """
        def work():
            return {process: processor_time(process) for process in self.processes()}

        def is_idle():
            before = work()
            time.sleep(IDLE_TIME)
            return before and before == work()
        wait_for("an idle program", is_idle)

    def workers(self):
        """The conversions that are at work for this program."""
        return self.processes("orvane-worker")

    @contextlib.contextmanager
    def held_work(self):
        """
        The conversion stands still meanwhile, so that it cannot end before the user acts. It is held in the middle:
        while the file is opened, which takes a tenth of this time, the program's keys wait.
        """
        workers = wait_for("the work", lambda: [worker for worker in self.workers() if processor_time(worker) >= 0.15])
        for worker in workers:
            os.kill(worker, signal.SIGSTOP)
        try:
            yield
        finally:
            for worker in workers:
                os.kill(worker, signal.SIGCONT)

    def main(self):
        return self.wait("the main window", lambda window: window.is_main)

    def progress(self):
        return self.wait("the progress window", lambda window: window.is_progress)

    def wait(self, what, condition):
        """The window of the application for which the condition holds."""
        return wait_for(what, lambda: next(filter(condition, self.desktop.windows()), None))

    def page(self, *before):
        """A page of a wizard, but none of those before it."""
        return self.wait("a page", lambda window: window.is_page and window not in before)

    def message(self):
        """A message, a question or the password prompt."""
        return self.wait("a message", lambda window: window.is_message)

    def wait_gone(self, window):
        wait_for(f"the end of {window}", lambda: window not in self.desktop.windows())

    def error_log(self):
        """Records of the error log but those of one pass that leaves one for every control it sees."""
        log = self.documents / "GUILog.tmp"
        if not log.exists():
            return []
        records = re.findall(r"Form Name: (.*?), Module Name: (.*?)\r?\n", log.read_text(errors="replace"))
        return [record for record in records if record[1] != "WrapButtonCaptions"]
