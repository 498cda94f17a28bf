#!/usr/bin/python3
"""In the guest: the window's program under Xvfb, worked through its preloaded driver, while the card is pulled out
of a search, of saving and of a preview, another card is put in, and the right one is put back.

Environment: MODES, MOMENTS a mode, SEED, SECTORS, PREVIEWS, CARD_IMAGE and OTHER_IMAGE (host paths), and
SEARCH=1 for the pull-outs of the search alone, each as soon as something is found; FIRST_WAY is how the first of
them goes on (0: back behind the alert, 1: later, 2: after another card)."""
import random
from proof import *

MODES = os.environ.get("MODES", "Photo,RawFile,Video").split(",")
MOMENTS = int(os.environ.get("MOMENTS", "3"))
SECTORS = int(os.environ["SECTORS"])
choose = random.Random(int(os.environ.get("SEED", "1")))
truth = Truth(SHARE + "/truth.json")
OUT = "/root/out"
complaints, notes = [], []


def complain(what):
    complaints.append(what)
    print("WRONG: " + what, flush=True)
    subprocess.run("import -display :9 -window root %s/wrong-%d.png" % (SHARE, len(complaints)), shell=True,
                   stderr=subprocess.DEVNULL)


def say(what):
    notes.append(what)
    print(what, flush=True)


class Window:
    COMMANDS, ANSWERS = "/root/driver.in", "/root/driver.out"

    def __init__(self):
        for path in (self.COMMANDS, self.ANSWERS):
            if os.path.exists(path):
                os.unlink(path)
        os.mkfifo(self.COMMANDS)
        open(self.ANSWERS, "w").close()
        os.makedirs("/run/window", 0o700, exist_ok=True)
        shutil.rmtree("/root/home", ignore_errors=True)
        os.makedirs("/root/home")
        self.log = open("/root/window.log", "w")
        self.process = subprocess.Popen(
            [PROGRAM + "/bin/vantor-recovery"], stdout=self.log, stderr=self.log,
            env=dict(os.environ, DISPLAY=":9", HOME="/root/home", XDG_RUNTIME_DIR="/run/window",
                     QT_QPA_PLATFORM="xcb", LD_PRELOAD=SHARE + "/driver.so",
                     VANTOR_DRIVER_COMMANDS=self.COMMANDS, VANTOR_DRIVER_ANSWERS=self.ANSWERS))
        self.pipe = os.open(self.COMMANDS, os.O_RDWR)
        self.answered = 0

    def ask(self, command="state", patience=240):
        os.write(self.pipe, command.encode() + b"\n")
        end = time.monotonic() + patience
        while time.monotonic() < end:
            lines = open(self.ANSWERS).read().split("\n")
            if len(lines) - 1 > self.answered:
                self.answered += 1
                return json.loads(lines[self.answered - 1])
            if self.process.poll() is not None:
                raise RuntimeError("the window's program ended: %s" % open("/root/window.log").read()[-500:])
            time.sleep(0.05)
        raise RuntimeError("the window does not answer")

    def do(self, command, patience=60):
        """Until it can be done."""
        end = time.monotonic() + patience
        while not (answer := self.ask(command))["done"]:
            if time.monotonic() > end:
                raise RuntimeError("cannot %s: %s" % (command, json.dumps(answer)[:1500]))
            time.sleep(0.2)
        return answer

    def until(self, condition, patience=400, answering=()):
        """Until the condition holds of what is in view; presses the first of these buttons that a panel has."""
        end = time.monotonic() + patience
        while not condition(state := self.ask()):
            if time.monotonic() > end:
                raise RuntimeError("waited in vain: %s" % json.dumps(state)[:1500])
            if state["modal"]:
                any(self.ask("press " + button)["done"] for button in answering)
            time.sleep(0.15)
        return state

    def end(self):
        self.process.terminate()
        try:
            self.process.wait(20)
        except subprocess.TimeoutExpired:
            complain("the window's program does not end")
            self.process.kill()
            self.process.wait()
        os.close(self.pipe)


def browser(mode):
    return "imageBrowser" if mode == "Photo" else "imageBrowser_2"


def suffix(mode):
    return "" if mode == "Photo" else "_Sig"


def is_over(mode):
    return lambda s: not s["modal"] and "_stop_scan" not in s["buttons"] and "saveAllButton" + suffix(mode) in s["buttons"]


def search(window, mode):
    window.until(lambda s: s["views"].get("idTableView", 0) > 0)
    window.do("row idTableView 0")
    window.do("click _rec_mode_" + mode)
    window.do("click nextButton")
    window.until(lambda s: "thoroughBox" in str(s) or "nextButton" in s["buttons"])
    window.do("click nextButton")
    if mode != "Photo":
        window.until(lambda s: "idCheckTableView" in s["views"])
        window.do("click nextButton")


def items(state, mode):
    return state["views"].get(browser(mode), 0)


def save_all(window, mode, meanwhile=None):
    window.do("click saveAllButton" + suffix(mode))
    ended = lambda s: s["modal"] and "OK" in s["buttons"] and "saveBar" not in str(s) and not any(
        "Choose where" in w for w in s["modal"]["words"])
    saving = lambda s: "Skip This File" in s["buttons"] or "skipButton" in s["buttons"] or "cancelButton" in s["buttons"]
    end = time.monotonic() + 600
    begun = False
    while time.monotonic() < end:
        state = window.ask()
        if "continueButton" in state["buttons"]:
            window.ask("click continueButton")
        elif "fileNameEdit" in state["fields"]:
            os.makedirs(OUT, exist_ok=True)
            window.ask("text fileNameEdit " + OUT)
            window.ask("press Choose")
        elif saving(state) and not begun:
            begun = True
            if meanwhile:
                meanwhile()
        elif ended(state):
            words = " ".join(state["modal"]["words"]).strip().replace("\n", " ")
            window.do("press OK")
            return words
        time.sleep(0.05)
    raise RuntimeError("saving did not end: %s" % json.dumps(state)[:1500])


def empty_out():
    """The folder stays: one that goes is asked for."""
    for path in glob.glob(OUT + "/*"):
        shutil.rmtree(path) if os.path.isdir(path) else os.unlink(path)


def swap(image):
    hostctl("image", "card0", os.environ[image])
    plugged_in()
    return disk(SECTORS)


def check_folder(what):
    for wrong in truth.wrong(OUT, COMPLETE):
        complain("%s: %s" % (what, wrong))


COMPLETE = set()


def in_mode(mode):
    if os.environ.get("SEARCH"):
        pulled_out_of_search(mode)
    else:
        pulled_out_of_search(mode, *pulled_out_afterwards(mode))


def pulled_out_afterwards(mode):
    """Of saving and of previews; how long an undisturbed search takes, and how much it finds."""
    window = Window()
    begun = time.monotonic()
    search(window, mode)
    begun = time.monotonic()
    state = window.until(is_over(mode), 900, ["OK"])
    seconds, all_items = time.monotonic() - begun, items(state, mode)
    empty_out()
    words = save_all(window, mode)
    reference = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    say("%s: %d items in %.0f s; %s" % (mode, all_items, seconds, words[:160]))

    # Pulled out of saving; another card in its place; the right one.
    empty_out()
    words = save_all(window, mode, unplug)
    check_folder("pulled out of saving")
    before = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    if not before <= reference:
        say("%s: pulled out of saving: %d of %d files are cut off" % (mode, len(before - reference), len(before)))
    say("%s: pulled out of saving after %d files: %s" % (mode, len(before), words[:200]))
    swap("OTHER_IMAGE")
    words = save_all(window, mode)
    after = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    if after - before - reference:
        complain("%s: saved from another card: %d files" % (mode, len(after - before - reference)))
    check_folder("another card while saving")
    say("%s: another card: %s" % (mode, words[:160]))
    unplug()
    swap("CARD_IMAGE")
    words = save_all(window, mode)
    after = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    if not reference <= after:
        complain("%s: put back, saved again: %d files missing: %s" % (mode, len(reference - after), words))
    check_folder("put back and saved")
    say("%s: put back: %s" % (mode, words[:160]))

    # Pulled out of a preview.
    for row in range(min(int(os.environ.get("PREVIEWS", "3")), all_items)):
        window.do("row %s %d" % (browser(mode), row))
        time.sleep(choose.uniform(0, 0.6))
        unplug()
        time.sleep(1)
        state = window.until(lambda s: not s["modal"], 120, ["OK"])
        swap("CARD_IMAGE")
        state = window.until(lambda s: not s["modal"], 120, ["OK"])
        if items(state, mode) != all_items:
            complain("%s: pulled out of a preview: %d items" % (mode, items(state, mode)))
    window.end()
    return seconds, all_items


def pulled_out_of_search(mode, seconds=None, all_items=None):
    """At random moments; before or behind its alert the card comes back."""
    for number in range(MOMENTS):
        window = Window()
        search(window, mode)
        begun = time.monotonic()
        if seconds:
            time.sleep(choose.uniform(0.2, seconds))
        else:
            window.until(lambda s: items(s, mode) > 1)
        running = "_stop_scan" in window.ask()["buttons"]
        unplug()
        at = time.monotonic() - begun
        way = (number + int(os.environ.get("FIRST_WAY", "0"))) % 3
        if way == 0:  # back while the alert is in view
            window.until(lambda s: s["modal"] or is_over(mode)(s), 300)
            swap("CARD_IMAGE")
        elif way == 1:
            window.until(is_over(mode), 300, ["OK"])
            swap("CARD_IMAGE")
        else:
            window.until(is_over(mode), 300, ["OK"])
            swap("OTHER_IMAGE")
            time.sleep(4)
            state = window.until(lambda s: not s["modal"], 60, ["OK"])
            if "_stop_scan" in state["buttons"]:
                complain("%s: goes on with another card" % mode)
            if state["buttons"].get("goOnButton"):
                window.do("click goOnButton")
                state = window.until(lambda s: s["modal"], 60)
                if not any("not the medium" in w for w in state["modal"]["words"]):
                    complain("%s: another card: %s" % (mode, state["modal"]["words"]))
                window.until(lambda s: not s["modal"], 60, ["OK"])
            unplug()
            time.sleep(2)
            window.until(lambda s: not s["modal"], 60, ["OK"])
            swap("CARD_IMAGE")
        try:
            state = window.until(lambda s: is_over(mode)(s) and (
                items(s, mode) == all_items if all_items else "completed" in s["labels"].get("searchEndLabel", "")),
                600, ["OK"])
            ended = state["labels"].get("searchEndLabel", "")
        except RuntimeError as error:
            ended = "?"
            complain("%s: pulled out at %.1f s (running %s, way %d): %s" % (mode, at, running, way, error))
        say("%s: pulled out at %.1f s (running %s), way %d: %d items, %s" % (
            mode, at, running, way, items(window.ask(), mode), ended[:100]))
        window.end()


take_program()
subprocess.Popen(["Xvfb", ":9", "-screen", "0", "1280x900x24"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
time.sleep(1)
subprocess.Popen(["openbox"], env=dict(os.environ, DISPLAY=":9"), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
disk(SECTORS)
for mode in MODES:
    try:
        in_mode(mode)
    except Exception as error:
        complain("%s: %s: %s" % (mode, type(error).__name__, error))
        subprocess.run(["pkill", "-x", "vantor-recovery"])
        try:
            swap("CARD_IMAGE")
        except Exception:
            pass
print("%d complaints" % len(complaints))
sys.exit(len(complaints) != 0)
