#!/usr/bin/python3
"""In the guest: saving into FAT32, exFAT, NTFS and a full quota, onto disks that fail, go, or turn read-only in
mid-run. card0 is searched, card1 is the disk for the destinations, card2 (5 GiB) holds a movie of more than 4 GiB.

Environment: SECTORS (card0), DISK_SECTORS (card1), BIG_SECTORS (card2), MOMENTS, MODE, RANGE of the card."""
import random
from proof import *

choose = random.Random(int(os.environ.get("SEED", "1")))
SECTORS, DISK = int(os.environ["SECTORS"]), int(os.environ["DISK_SECTORS"])
MOMENTS = int(os.environ.get("MOMENTS", "3"))
WHAT = os.environ.get("WHAT", "plain,big,full,quota,error,unmounted,readonly").split(",")
truth = Truth(SHARE + "/truth.json")
PLACE = "/mnt/place"
complaints = 0


QUOTA = int(os.environ.get("QUOTA", "6000"))  # KiB


def shell(command, check=True):
    done = subprocess.run(command, shell=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if check and done.returncode != 0:
        raise RuntimeError("%s: %s" % (command, done.stdout[-500:]))
    return done.stdout


def formatted(kind, node):
    make = {"fat32": "mkfs.vfat -F 32 %s", "exfat": "mkfs.exfat %s", "ntfs": "mkfs.ntfs -Q -F %s",
            "ext4": "mkfs.ext4 -q -F %s"}[kind]
    mount = {"fat32": "mount -t vfat %s %s", "exfat": "mount -t exfat %s %s", "ntfs": "ntfs-3g %s %s",
             "ext4": "mount -t ext4 %s %s"}[kind]
    shell("wipefs -a " + node, check=False)
    shell(make % node)
    os.makedirs(PLACE, exist_ok=True)
    shell(mount % (node, PLACE))


def unmount(lazily=False):
    shell("umount %s %s" % ("-l" if lazily else "", PLACE), check=lazily)


def save(*more, mode=os.environ.get("MODE", "rawfile"), node=None, folder=PLACE + "/out"):
    range_ = [] if "--range" in more else ["--range", os.environ.get("RANGE", "0:%d" % SECTORS)]
    return Run("--mode", mode, "--save", folder, "--report", *range_, *more, node or disk(SECTORS))


def tell(name, run, code, wrong, folder=PLACE + "/out"):
    global complaints
    wrong = wrong + truth.wrong(folder, COMPLETE)
    rows = report_rows(folder)
    failed = [r["path_or_reason"] for r in rows if r["result"] == "failed"]
    print("%s: code %s, %.0f s, %d files, %d failed%s%s; said: %s" % (
        name, code, run.seconds, len(saved_files(folder)), len(failed),
        " (%s)" % failed[0] if failed else "", "; WRONG: %s" % wrong if wrong else "",
        run.errors().strip().replace("\n", " | ")[:200]), flush=True)
    complaints += bool(wrong)


def left_on_root(folder=PLACE):
    return ["written below the mount point: " + p for p in glob.glob(folder + "/**", recursive=True) if os.path.isfile(p)]


take_program()
for module in ("dm-mod", "dm-flakey", "fuse", "quota_v2"):
    subprocess.run(["modprobe", module])
node = disk(DISK)
run = save(folder="/root/out")
assert run.wait(300) == 0, run.errors()
COMPLETE = {r["sha256"] for r in report_rows("/root/out") if r["soundness"] == "complete"}
SUMS = {hashlib.sha256(c).hexdigest() for c in saved_files("/root/out").values()}
SECONDS = run.seconds
print("reference: %d files in %.0f s" % (len(SUMS), SECONDS), flush=True)

if "plain" in WHAT:
    for kind in ("fat32", "exfat", "ntfs"):
        formatted(kind, node)
        run = save()
        code = run.wait(400)
        shell("sync; echo 3 > /proc/sys/vm/drop_caches; umount %s" % PLACE)
        shell({"fat32": "mount -t vfat %s %s", "exfat": "mount -t exfat %s %s", "ntfs": "ntfs-3g %s %s"}[kind] % (node, PLACE))
        have = {hashlib.sha256(c).hexdigest() for c in saved_files(PLACE + "/out").values()}
        wrong = [] if code == 0 and have == SUMS else ["code %s, %d missing, %d others" % (code, len(SUMS - have), len(have - SUMS))]
        tell(kind, run, code, wrong)
        # Once more into the same folder: known by their bytes.
        before = len(saved_files(PLACE + "/out"))
        run = save()
        code = run.wait(400)
        if len(saved_files(PLACE + "/out")) != before:
            tell(kind + ", once more", run, code, ["%d files more" % (len(saved_files(PLACE + "/out")) - before)])
        unmount()

if "big" in WHAT:
    big = int(os.environ["BIG_SECTORS"])
    formatted("fat32", node)
    run = save("--range", "0:40000", mode="video", node=disk(big))
    code = run.wait(900)
    wrong = [] if code == 6 else ["code %s" % code]
    wrong += ["%s is %d bytes" % (p, len(c)) for p, c in saved_files(PLACE + "/out").items() if len(c) > 4 << 20]
    tell("more than 4 GiB on FAT32", run, code, wrong)
    unmount()

if "full" in WHAT:
    room = int(os.environ.get("ROOM", 4 << 20))
    for kind in ("ext4", "fat32"):
        formatted(kind, node)
        free = os.statvfs(PLACE)
        fill = free.f_bavail * free.f_frsize - room
        shell("head -c %d /dev/zero > %s/fill; sync" % (fill, PLACE))
        run = save()
        code = run.wait(400)
        have = {hashlib.sha256(c).hexdigest() for c in saved_files(PLACE + "/out").values()}
        wrong = [] if code == 6 and have <= SUMS else ["code %s, %d others" % (code, len(have - SUMS))]
        tell("full %s" % kind, run, code, wrong)
        unmount()

if "quota" in WHAT:
    shell("mkfs.ext4 -q -F -O quota %s; mkdir -p %s; mount -o usrquota %s %s" % (node, PLACE, node, PLACE))
    shell("setquota -u user %d %d 0 0 %s; mkdir %s/out; chown user %s/out; chmod 644 %s; chmod 755 /root" % (
        QUOTA, QUOTA, PLACE, PLACE, PLACE, disk(SECTORS)))
    shell("chmod 644 " + disk(SECTORS))
    run = Run("--mode", "rawfile", "--save", PLACE + "/out", "--report", "--range",
              os.environ.get("RANGE", "0:%d" % SECTORS), disk(SECTORS), prefix=["setpriv", "--reuid=1000", "--regid=1000", "--clear-groups"])
    code = run.wait(400)
    have = {hashlib.sha256(c).hexdigest() for c in saved_files(PLACE + "/out").values()}
    wrong = [] if code == 6 and have <= SUMS | truth.sums and have else ["code %s, %d others of %d" % (code, len(have - SUMS - truth.sums), len(have))]
    tell("quota", run, code, wrong)
    unmount()

if "error" in WHAT:
    # Good up to the middle, where the file system's data goes, and errors behind it.
    for kind, mount in (("ext4", "mkfs.ext4 -q -F -O ^has_journal"), ("fat32", "mkfs.vfat -F 32")):
        subprocess.run(["dmsetup", "create", "place"], input="0 %d linear %s 0\n" % (DISK, node), text=True, check=True)
        shell("%s /dev/mapper/place; mkdir -p %s; mount /dev/mapper/place %s" % (mount, PLACE, PLACE))
        run = save()
        time.sleep(choose.uniform(1, max(1.5, SECONDS * 0.7)))
        shell("dmsetup suspend --nolockfs place")
        subprocess.run(["dmsetup", "reload", "place"], input="0 %d flakey %s 0 0 3600 1 error_writes\n" % (DISK, node),
                       text=True, check=True)
        shell("dmsetup resume place")
        code = run.wait(400)
        # What is reported as saved has to lie on the disk, not only in memory.
        rows = report_rows(PLACE + "/out")
        saved = [r for r in rows if r["result"] == "saved"]
        shell("umount -l %s; echo 3 > /proc/sys/vm/drop_caches; sleep 1" % PLACE, check=False)
        wrong = [] if code is not None else ["did not end"]
        print("writes that fail, %s: code %s, %.0f s, report of %d rows, %d saved; said: %s%s" % (
            kind, code, run.seconds, len(rows), len(saved), run.errors().strip().replace("\n", " | ")[:200],
            "; WRONG: %s" % wrong if wrong else ""), flush=True)
        complaints += bool(wrong)
        complaints += len(left_on_root()) != 0
        shell("sleep 1; dmsetup remove --retry -f place", check=False)

for what in ("unmounted", "readonly"):
    for number in range(MOMENTS if what in WHAT else 0):
        kind = ("ext4", "fat32", "exfat")[number % 3]
        formatted(kind, node)
        run = save()
        while run.process.poll() is None and not os.path.isdir(PLACE + "/out"):
            time.sleep(0.05)
        at = choose.uniform(0.1, SECONDS)
        time.sleep(at)
        if what == "unmounted":
            unmount(lazily=True)
        else:
            for _ in range(200):
                if subprocess.run(["mount", "-o", "remount,ro", PLACE], capture_output=True).returncode == 0:
                    break
                time.sleep(0.01)
        code = run.wait(400)
        wrong = ["did not end"] if code is None else []
        if what == "unmounted":
            wrong += left_on_root()
            shutil.rmtree(PLACE + "/out", ignore_errors=True)
            for _ in range(50):
                if subprocess.run(["mount", node, PLACE], capture_output=True).returncode == 0:
                    break
                time.sleep(0.2)
        have = {hashlib.sha256(c).hexdigest() for c in saved_files(PLACE + "/out").values()}
        wrong += ["%d files of other bytes" % len(have - SUMS)] if have - SUMS else []
        if code == 0 and have != SUMS:
            wrong.append("code 0, yet %d files are missing" % len(SUMS - have))
        tell("%s at %.1f s, %s" % (what, at, kind), run, code, wrong)
        unmount()
print("%d complaints" % complaints)
sys.exit(complaints != 0)
