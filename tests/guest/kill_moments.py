#!/usr/bin/python3
"""kill_moments.py CLI PRELOAD CARD.img WORK [MOMENTS] [BESIDE]

The command is killed (-9) at random moments of a search of a slow card, and its search is gone on with: what it
lists and saves then is what an undisturbed one does, and what is read again was read in the last ten seconds
(or is read again by every search that goes on, since it is worth a look). Needs no guest. Modes and --image take
turns. PRELOAD is the tests' library that makes an image slow and notes each read."""
import concurrent.futures, hashlib, json, os, random, shutil, signal, subprocess, sys, time

cli, preload, card, work = [os.path.abspath(p) for p in sys.argv[1:5]]
moments = int(sys.argv[5]) if len(sys.argv) > 5 else 50
beside = int(sys.argv[6]) if len(sys.argv) > 6 else 4
SLOWLY = 250  # microseconds a sector
MODES = ("photo", "video", "rawfile")


def start(folder, log, slowly, *arguments, save=True):
    environment = dict(os.environ, LD_PRELOAD=preload, VANTOR_FAULT_FILE=card, VANTOR_FAULT_LOG=log,
                       VANTOR_FAULT_SLOWLY=str(slowly))
    out = open(folder + "/out.json", "w")
    saving = ["--save", folder + "/saved"] if save else []
    return subprocess.Popen([cli, "--list-json", *saving, *arguments], stdout=out,
                            stderr=open(folder + "/errors", "w"), env=environment)


def reads(log, searching=None):
    """{sector: milliseconds of its last good read}; of a search only, that goes sector by sector, or of a copy"""
    last, before = {}, -1
    for line in open(log) if os.path.exists(log) else ():
        words = line.split()
        if words[0] != "read" or len(words) != 4:
            continue
        follows = words[2] == "1" and int(words[1]) == before + 1
        before = int(words[1]) if words[2] == "1" else before
        if searching is None or (follows if searching == "search" else int(words[2]) >= 64):
            for sector in range(int(words[1]), int(words[1]) + int(words[2])):
                last[sector] = int(words[3])
    return last


def copied(path):
    """The sectors that a copy's map calls copied."""
    lines = [l.split() for l in open(path) if l.strip() and not l.startswith("#")][1:] if os.path.exists(path) else []
    return {s for l in lines if l[2] == "+"
            for s in range(int(l[0], 0) // 512, (int(l[0], 0) + int(l[1], 0)) // 512)}


def items(folder):
    return [json.loads(line) for line in open(folder + "/out.json") if '"name"' in line]


def saved(folder):
    return sorted((os.path.relpath(os.path.join(base, name), folder + "/saved"),
                   hashlib.sha256(open(os.path.join(base, name), "rb").read()).hexdigest())
                  for base, _, names in os.walk(folder + "/saved") for name in names)


def fresh(name):
    folder = os.path.join(work, name)
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    return folder


def reference(kind):
    mode, copy = kind
    folder = fresh("reference-%s-%d" % kind)
    image = ["--image", folder + "/copy.img"] if copy else []
    begun = time.monotonic()
    process = start(folder, folder + "/log", SLOWLY, "--mode", mode, "--session", folder + "/session", *image, card)
    assert process.wait() == 0, open(folder + "/errors").read()
    seconds = time.monotonic() - begun
    told, files = items(folder), saved(folder)
    shutil.rmtree(folder + "/saved")
    process = start(folder, folder + "/log2", 1, "--resume", folder + "/session", *image, save=False)
    assert process.wait() == 0, open(folder + "/errors").read()
    assert items(folder) == told
    # What every search that goes on reads, with all of it known.
    return {"seconds": seconds, "items": told, "files": files, "again": set(reads(folder + "/log2"))}


def moment(number, kind, known):
    mode, copy = kind
    folder = fresh("moment-%d" % number)
    image = ["--image", folder + "/copy.img"] if copy else []
    at = random.Random(number).uniform(0.3, known["seconds"])
    process = start(folder, folder + "/log", SLOWLY, "--mode", mode, "--session", folder + "/session", *image, card)
    time.sleep(at)
    process.send_signal(signal.SIGKILL)
    killed = time.monotonic() * 1000
    process.wait()
    wrong = []
    # Before it is searched or copied a medium is looked at here and there, which is no loss.
    before = reads(folder + "/log", "copy" if copy else "search")
    kept = os.path.exists(folder + "/session")
    how = ["--resume", folder + "/session"] if kept else ["--mode", mode, card]
    held = copied(folder + "/copy.img.map")
    if kept and not copy:
        # What it reads to list; saving reads on from whatever it begins with.
        shutil.copyfile(folder + "/session", folder + "/session2")
        start(folder, folder + "/log2", 1, "--resume", folder + "/session2", save=False).wait()
        if items(folder) != known["items"]:
            wrong.append("listed otherwise: %d of %d" % (len(items(folder)), len(known["items"])))
    elif not copy:
        shutil.copyfile(folder + "/log", folder + "/log2")
    process = start(folder, folder + "/log3", 1, *how, *image)
    code = process.wait()
    if code != 0:
        wrong.append("code %d: %s" % (code, open(folder + "/errors").read()[-300:]))
    if items(folder) != known["items"]:
        wrong.append("other items: %d of %d" % (len(items(folder)), len(known["items"])))
    missing = {s for _, s in known["files"]} - {s for _, s in saved(folder)}
    others = [path for path, s in saved(folder) if s not in {s for _, s in known["files"]}]
    twice = len(saved(folder)) - len(known["files"])
    if missing or others or twice:
        wrong.append("files: %d missing, others %s, %d too many" % (len(missing), others[:3], twice))
    # Before it goes on with a copy it compares some sectors; those are no loss.
    again = set(before) - held if copy else (set(reads(folder + "/log2")) & set(before)) - known["again"]
    lost = max((killed - before[s] for s in again), default=0) / 1000
    shutil.rmtree(folder)
    return {"mode": mode, "copy": copy, "at": round(at, 1), "read": len(before), "lost": len(again), "session": kept,
            "lost seconds": round(lost, 1), "wrong": wrong}


kinds = [(mode, copy) for mode in MODES for copy in (False, True)]
with concurrent.futures.ThreadPoolExecutor(beside) as pool:
    known = dict(zip(kinds, pool.map(reference, kinds)))
    for kind in kinds:
        print("%s: %.0f s, %d items, %d files" % (kind, known[kind]["seconds"], len(known[kind]["items"]),
                                                  len(known[kind]["files"])), flush=True)
    results = []
    for result in pool.map(lambda n: moment(n, kinds[n % 6], known[kinds[n % 6]]), range(moments)):
        results.append(result)
        print(json.dumps(result), flush=True)
bad = sum(bool(r["wrong"]) for r in results)
print("%d moments, %d with complaints, most that was lost: %.1f s" % (
    len(results), bad, max(r["lost seconds"] for r in results)))
sys.exit(bad != 0)
