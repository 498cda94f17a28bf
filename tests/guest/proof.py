"""What the proofs in the guest share: the card, the command, and what is true of the files."""
import csv, glob, hashlib, json, os, shutil, signal, subprocess, sys, time

PROGRAM = "/root/prog"
CLI = PROGRAM + "/bin/vantor-recovery-cli"
SHARE = "/mnt/share"
SECTOR = 512


def hostctl(*words):
    return subprocess.run(["hostctl", *words], check=True, capture_output=True, text=True).stdout.strip()


def take_program():
    if not os.path.exists(PROGRAM):
        shutil.copytree(SHARE + "/prog", PROGRAM)
        for folder in ("bin", "libexec"):
            for path in glob.glob("%s/%s/*" % (PROGRAM, folder)):
                os.chmod(path, 0o755)


def disk(sectors, patience=30):
    """The node of the card that is in, once the kernel has it."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        for path in glob.glob("/sys/block/sd*"):
            try:
                if int(open(path + "/size").read()) == sectors:
                    subprocess.run(["udevadm", "settle", "--timeout=20"])
                    return "/dev/" + os.path.basename(path)
            except (OSError, ValueError):
                pass
        time.sleep(0.05)
    raise RuntimeError("no card")


def plugged_in(card="card0"):
    return hostctl("plug", card)


def unplug(card="card0"):
    return hostctl("unplug", card)


def sum_of(path):
    return hashlib.sha256(open(path, "rb").read()).hexdigest()


def saved_files(folder):
    """{path below the folder: bytes}, without the reports."""
    found = {}
    for base, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(base, name)
            if not name.startswith("Recovery report"):
                found[os.path.relpath(path, folder)] = open(path, "rb").read()
    return found


def report_rows(folder):
    rows = []
    for path in glob.glob(folder + "/Recovery report*.csv"):
        with open(path, newline="") as f:
            rows += list(csv.DictReader(f))
    return rows


def listed(text):
    return [line for line in map(json.loads, text.splitlines()) if "name" in line]


def identities(items):
    return [(i["pass"], i["name"], i["uid"], i["first_sector"], i["end_sector"]) for i in items]


class Run:
    """One run of the command, its standard output and error in files."""

    def __init__(self, *arguments, prefix=()):
        self.out, self.err = "/root/cli.out", "/root/cli.err"
        with open(self.out, "w") as out, open(self.err, "w") as err:
            self.process = subprocess.Popen([*prefix, CLI, *map(str, arguments)], stdout=out, stderr=err,
                                            stdin=subprocess.DEVNULL)
        self.begun = time.monotonic()

    def wait(self, patience=180):
        """The exit code; None (and the process killed) when it does not end."""
        try:
            code = self.process.wait(patience)
        except subprocess.TimeoutExpired:
            self.process.send_signal(signal.SIGKILL)
            code = None
        self.seconds = time.monotonic() - self.begun
        return code

    def output(self):
        return open(self.out).read()

    def errors(self):
        return open(self.err).read()


def map_copied(path, sectors):
    """The set of sectors that a copy's map calls copied."""
    copied = set()
    position_seen = False
    for line in open(path):
        if line.startswith("#") or not line.strip():
            continue
        if not position_seen:
            position_seen = True
            continue
        first, size, state = line.split()[:3]
        if state == "+":
            copied.update(range(int(first, 0) // SECTOR, (int(first, 0) + int(size, 0)) // SECTOR))
    return copied


class Truth:
    """What is on the card, and what an undisturbed run makes of it."""

    def __init__(self, path):
        self.files = json.load(open(path))
        self.sums = {f["sha256"] for f in self.files}

    def wrong(self, folder, reference_sums=frozenset()):
        """Complaints about what lies in a folder: zeros, and what is said to be complete and is not."""
        complaints = []
        files = saved_files(folder)
        for path, content in files.items():
            if content.count(0) == len(content):
                complaints.append("zeros: %s, %d bytes" % (path, len(content)))
            if os.path.basename(path).startswith(".vantor"):
                complaints.append("left over: " + path)
        for row in report_rows(folder):
            if row["result"] not in ("saved", "duplicate"):
                continue
            content = files.get(row["path_or_reason"])
            if content is None:
                complaints.append("reported but absent: " + row["path_or_reason"])
                continue
            actual = hashlib.sha256(content).hexdigest()
            if row["sha256"] and actual != row["sha256"]:
                complaints.append("other bytes than reported: " + row["path_or_reason"])
            if row["soundness"] == "complete" and actual not in self.sums and actual not in reference_sums:
                complaints.append("said complete (checked %s) and is not: %s, %d bytes, %s unreadable" % (
                    row["content_checked"], row["path_or_reason"], len(content), row["unreadable_sectors"]))
        return complaints
