#!/usr/bin/python3
"""In the guest: the card is pulled out of a search (and of its saving, which goes along) at random moments,
with and without a copy, in each mode; then another card is refused and the same one is gone on with.

Environment: MOMENTS a mode (20), SEED, CARD_IMAGE and OTHER_IMAGE (host paths), MODES, COPIES, RANGE of the card."""
import random, re
from proof import *

MODES = os.environ.get("MODES", "photo,video,rawfile").split(",")
COPIES = [c == "1" for c in os.environ.get("COPIES", "0,1").split(",")]
MOMENTS = int(os.environ.get("MOMENTS", "20"))
choose = random.Random(int(os.environ.get("SEED", "1")))
truth = Truth(SHARE + "/truth.json")
SECTORS = int(os.environ["SECTORS"])
RANGE = ["--range", os.environ.get("RANGE", "0:%d" % SECTORS)]
OUT, SESSION, IMAGE = "/root/out", "/root/session", "/root/copy.img"


def clear():
    shutil.rmtree(OUT, ignore_errors=True)
    for path in glob.glob(IMAGE + "*") + [SESSION]:
        if os.path.exists(path):
            os.unlink(path)


def options(copy):
    return ["--save", OUT, "--report", "--list-json"] + (["--image", IMAGE] if copy else [])


def state_of_everything():
    return {p: sum_of(p) for p in glob.glob(OUT + "/**", recursive=True) + glob.glob(IMAGE + "*") + [SESSION]
            if os.path.isfile(p)}


def undisturbed(mode, copy):
    clear()
    run = Run("--mode", mode, *RANGE, *options(copy), "--session", SESSION, disk(SECTORS))
    code = run.wait()
    assert code == 0, (code, run.errors())
    rows = report_rows(OUT)
    reference = {
        "items": listed(run.output()), "seconds": run.seconds, "files": saved_files(OUT), "rows": rows,
        "complete": {r["sha256"] for r in rows if r["soundness"] == "complete" and r["result"] == "saved"}}
    reference["sums"] = {hashlib.sha256(c).hexdigest() for c in reference["files"].values()}
    wrong = truth.wrong(OUT)
    print("reference %s copy=%d: %.1f s, %d items, %d files, %d of %d true files; complaints: %s" % (
        mode, copy, run.seconds, len(reference["items"]), len(reference["files"]),
        len(truth.sums & reference["sums"]), len(truth.sums), wrong), flush=True)
    return reference


def lost_of_what_was_read(mode, copy, reference, items, errors):
    """What a run should have saved, and has not."""
    have = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    lost = []
    if copy:
        copied = map_copied(IMAGE + ".map", SECTORS)
        for f in truth.files:
            sectors = range(f["first"], f["first"] + (f["size"] + SECTOR - 1) // SECTOR)
            if f["sha256"] in reference["sums"] and f["sha256"] not in have and copied.issuperset(sectors):
                lost.append(f["path"])
    else:
        # A listed photo's bytes were in memory when the card went, as far as it was read until then.
        gone = re.search(r"answering at sector ([\d,]+) of", errors)
        readTo = int(gone.group(1).replace(",", "")) if gone and "general" not in errors else SECTORS
        found = {i["first_sector"]: i for i in items}
        for row in reference["rows"]:
            item = found.get(int(row["first_sector"]))
            whole = item and int(row["first_sector"]) + (int(row["bytes"]) + SECTOR - 1) // SECTOR <= readTo
            if row["result"] == "saved" and whole and row["pieces"] == "1" and row["sha256"] not in have:
                lost.append("%s %s" % (row["name"], row["first_sector"]))
    return lost


def moment(mode, copy, reference, number):
    clear()
    at = choose.uniform(0.1, reference["seconds"] + 0.3)
    node = disk(SECTORS)
    run = Run("--mode", mode, *RANGE, *options(copy), "--session", SESSION, node)
    time.sleep(at)
    unplug()
    code = run.wait()
    items = listed(run.output())
    result = {"mode": mode, "copy": copy, "at": round(at, 2), "code": code, "items": len(items),
              "files": len(saved_files(OUT)), "wrong": truth.wrong(OUT, reference["complete"]),
              "failed": sum(r["result"] == "failed" for r in report_rows(OUT)),
              "lost": lost_of_what_was_read(mode, copy, reference, items, run.errors()), "said": run.errors()[-300:]}
    if code is None:
        result["wrong"].append("did not end")
    want = identities(reference["items"])
    # The item that was open when the medium went is listed up to its limit.
    if identities(items)[:-1] != want[:max(0, len(items) - 1)] and mode != "photo":
        result["wrong"].append("the list begins otherwise")
    session_there = os.path.exists(SESSION)
    if number % 4 == 0 and session_there:
        before = state_of_everything()
        hostctl("image", "card0", os.environ["OTHER_IMAGE"])
        plugged_in()
        other = Run("--resume", SESSION, *options(copy), disk(SECTORS))
        result["other"] = other.wait()
        if other.process.returncode not in (5, 6) or state_of_everything() != before:
            result["wrong"].append("another card: code %s: %s" % (result["other"], other.errors()[-300:]))
        unplug()
        hostctl("image", "card0", os.environ["CARD_IMAGE"])
    plugged_in()
    node = disk(SECTORS)
    if session_there:
        again = Run("--resume", SESSION, *options(copy), node)
    else:
        again = Run("--mode", mode, *RANGE, *options(copy), node)
    result["session"] = session_there
    result["again"] = again.wait()
    if identities(listed(again.output())) != want:
        result["wrong"].append("gone on with: other items (%d of %d)" % (len(listed(again.output())), len(want)))
    if result["again"] != 0:
        result["wrong"].append("gone on with: code %s: %s" % (result["again"], again.errors()[-300:]))
    result["wrong"] += ["gone on with: " + w for w in truth.wrong(OUT, reference["complete"])]
    have = {hashlib.sha256(c).hexdigest() for c in saved_files(OUT).values()}
    if not reference["sums"] <= have:
        result["wrong"].append("gone on with: %d files missing" % len(reference["sums"] - have))
    result["extra"] = len(have - reference["sums"])
    print(json.dumps(result), flush=True)
    return result


take_program()
bad = lost = runs = 0
kinds = [(mode, copy) for copy in COPIES for mode in MODES]
references = {kind: undisturbed(*kind) for kind in kinds}
for number in range(MOMENTS):
    for kind in kinds:
        result = moment(*kind, references[kind], number)
        runs += 1
        bad += bool(result["wrong"])
        lost += bool(result["lost"])
print("%d pull-outs, %d with complaints, %d that lost what was read" % (runs, bad, lost))
sys.exit(bad != 0 or lost != 0)
