#!/usr/bin/python3
"""In the guest: a card with two bad zones, its refusals quick, slow (1 s each) and a device that hangs.
Good photos that come back, and how often each bad sector was asked for, are counted.

The share holds zones.img beside truth-zones.json. Environment: SECTORS, ZONES (FIRST+COUNT,FIRST+COUNT)."""
from proof import *

SECTORS = int(os.environ["SECTORS"])
ZONES = [(int(z.split("+")[0]), int(z.split("+")[1])) for z in os.environ["ZONES"].split(",")]
BAD = {s for first, count in ZONES for s in range(first, first + count)}
WHAT = os.environ.get("WHAT", "quick,copy,slow,hang").split(",")
truth = Truth(SHARE + "/truth-zones.json")
good = [f for f in truth.files if not BAD & set(range(f["first"], f["first"] + (f["size"] + SECTOR - 1) // SECTOR))]
TRACE = "/sys/kernel/tracing"
complaints = 0


def write(path, text):
    with open(path, "w") as f:
        f.write(text)


def trace_refusals():
    if not os.path.exists(TRACE + "/events"):
        subprocess.run(["mount", "-t", "tracefs", "tracefs", TRACE])
    write(TRACE + "/buffer_size_kb", "16384")
    write(TRACE + "/trace", "")
    write(TRACE + "/events/block/block_rq_complete/filter", "error != 0")
    write(TRACE + "/events/block/block_rq_complete/enable", "1")


def refusals():
    """The requests that failed, as (first sector, count)."""
    found = []
    for line in open(TRACE + "/trace"):
        if "block_rq_complete" in line and not line.startswith("#"):
            words = line.split("()")[1].split() if "()" in line else line.split(")")[-1].split()
            found.append((int(words[0]), int(words[2])))
    return found


def tell(name, code, run, folder, asked=None):
    global complaints
    have = {hashlib.sha256(c).hexdigest() for c in saved_files(folder).values()}
    back = sum(f["sha256"] in have for f in good)
    wrong = truth.wrong(folder)
    text = "%s: code %s, %.0f s, %d of %d good photos" % (name, code, run.seconds, back, len(good))
    if asked is not None:
        alone = {}
        for first, count in asked:
            if count == 1:
                alone[first] = alone.get(first, 0) + 1
        covered = {s: sum(f <= s < f + c for f, c in asked) for s in BAD}
        text += "; %d failing requests for %d bad sectors (%.2f each), alone at most %d, of any size at most %d" % (
            len(asked), len(BAD), len(asked) / len(BAD), max(alone.values(), default=0), max(covered.values()))
        often = sorted(s for s, n in alone.items() if n > 2)
        if often:
            text += "; more than twice: %d sectors, such as %s: %s" % (
                len(often), often[0], [(i, r) for i, r in enumerate(asked) if r[0] <= often[0] < sum(r)])
        with open("%s/asked-%s.json" % (SHARE, name.replace(" ", "-")), "w") as f:
            json.dump(asked, f)
        # Some windows are refused whole before their sectors are asked for.
        if len(asked) > 2 * len(BAD) + 10 or max(alone.values(), default=0) > 2:
            wrong.append("asked too often")
    if back != len(good):
        wrong.append("good photos are missing")
    rows = report_rows(folder)
    text += "; damaged: %s" % sorted(int(r["unreadable_sectors"]) for r in rows if r["unreadable_sectors"] not in ("", "0"))
    print(text + ("; WRONG: %s" % wrong if wrong else ""), flush=True)
    complaints += bool(wrong)
    return back


def fresh():
    for folder in glob.glob("/root/out*"):
        shutil.rmtree(folder)
    for path in glob.glob("/root/copy*") + ["/root/session"]:
        if os.path.exists(path):
            os.unlink(path)


def search(node, *more, mode="photo"):
    return Run("--mode", mode, "--save", "/root/out", "--report", *more, node)


def mapped(zone):
    """Device-mapper lines for the card with something else in its bad zones."""
    lines, at = [], 0
    node = disk(SECTORS)
    for first, count in ZONES:
        lines.append("%d %d linear %s %d" % (at, first - at, node, at))
        lines.append("%d %d %s" % (first, 12, zone(first)))
        at = first + 12
    lines.append("%d %d linear %s %d" % (at, SECTORS - at, node, at))
    return "\n".join(lines) + "\n"


def dmsetup(*words, table=None):
    subprocess.run(["dmsetup", *words], input=table, text=True, check=True, stdout=subprocess.DEVNULL)


def over(process):
    """Whether its main thread is."""
    return process.poll() is not None or "State:\tZ" in open("/proc/%d/status" % process.pid).read()


take_program()
for module in ("dm-mod", "dm-delay", "dm-flakey"):
    subprocess.run(["modprobe", module])
node = disk(SECTORS)
if "quick" in WHAT:
    fresh()
    trace_refusals()
    run = search(node)
    code = run.wait(600)
    tell("bad zones, photo", code, run, "/root/out", refusals())
    if "rawfile" in WHAT:
        fresh()
        trace_refusals()
        run = search(node, mode="rawfile")
        code = run.wait(900)
        tell("bad zones, rawfile", code, run, "/root/out", refusals())
if "copy" in WHAT:
    fresh()
    trace_refusals()
    run = search(node, "--image", "/root/copy.img", "--session", "/root/session")
    code = run.wait(600)
    tell("bad zones, with a copy", code, run, "/root/out", refusals())
    trace_refusals()
    shutil.rmtree("/root/out")
    run = Run("--resume", "/root/session", "--image", "/root/copy.img", "--save", "/root/out", "--report", node)
    code = run.wait(600)
    tell("gone on with from the copy", code, run, "/root/out", refusals())
if os.path.exists(TRACE + "/events"):
    write(TRACE + "/events/block/block_rq_complete/enable", "0")
if "slow" in WHAT:
    # Each refusal of some sectors takes a second; of more of them nobody would wait for the end.
    dmsetup("create", "refusing", table="0 %d error\n" % SECTORS)
    dmsetup("create", "slow", table=mapped(lambda first: "delay /dev/mapper/refusing %d 1000" % first))
    for name, more in (("slow refusals", []), ("slow refusals, with a copy", ["--image", "/root/copy.img"])):
        fresh()
        run = search("/dev/mapper/slow", *more)
        code = run.wait(900)
        tell(name, code, run, "/root/out")
    dmsetup("remove", "slow")
    dmsetup("remove", "refusing")
if "hang" in WHAT:
    dmsetup("create", "hang", table="0 %d linear %s 0\n" % (SECTORS, node))
    for name, more in (("hang", []), ("hang, with a copy", ["--image", "/root/copy.img"])):
        fresh()
        run = search("/dev/mapper/hang", *more)
        time.sleep(float(os.environ.get("HANG_AFTER", "6")))
        dmsetup("suspend", "--nolockfs", "--noflush", "hang")
        time.sleep(5)
        alive = run.process.poll() is None
        run.process.send_signal(signal.SIGINT)
        begun = time.monotonic()
        # The kernel holds the thread that reads; all the others end.
        while time.monotonic() < begun + 30 and not over(run.process):
            time.sleep(0.1)
        took = time.monotonic() - begun
        wrong = truth.wrong("/root/out")
        if not over(run.process) or not report_rows("/root/out"):
            wrong.append("did not end")
        print("%s: was %s, over %.1f s after Ctrl-C, %d files%s" % (
            name, "waiting" if alive else "over already", took, len(saved_files("/root/out")),
            "; WRONG: %s" % wrong if wrong else ""), flush=True)
        complaints += bool(wrong)
        dmsetup("resume", "hang")
        code = run.wait(60)
        print("%s: code %s" % (name, code), flush=True)
    dmsetup("remove", "--retry", "hang")
print("%d complaints" % complaints)
sys.exit(complaints != 0)
