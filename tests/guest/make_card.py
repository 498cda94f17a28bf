#!/usr/bin/python3
"""make_card.py CORPUS WORK OUT.img TRUTH.json [--mib N] [--seed N] [--photos N] [--movies N] [--label L]

A FAT32 card without a partition table, filled with photos and movies made by ffmpeg and the larger files of
CORPUS; TRUTH.json lists each file's path, size, checksum and first sector. WORK keeps what ffmpeg made.
Two cards of the same size and label with other seeds differ in content alone."""
import argparse, hashlib, json, os, random, shutil, subprocess, tempfile

SECTOR = 512


def run(*command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def ffmpeg(out, *options):
    if not os.path.exists(out):
        run("ffmpeg", "-nostdin", "-v", "error", "-y", *options, "-threads", "1", "-bitexact", out + ".part" + os.path.splitext(out)[1])
        os.rename(out + ".part" + os.path.splitext(out)[1], out)
    return out


def photo(work, seed, number):
    # Pictures that are all different and hard to pack, so that a lost sector shows.
    edge = 640 + 160 * (number % 4)
    return ffmpeg("%s/p%d-%d.jpg" % (work, seed, number), "-f", "lavfi", "-i",
                  "testsrc2=s=%dx%d:r=1:d=1,noise=alls=%d:allf=u:all_seed=%d" % (edge, edge * 3 // 4, 20 + number % 30, 1000 * seed + number),
                  "-frames:v", "1", "-q:v", "3")


def movie(work, seed, number):
    ext = "mp4" if number % 2 else "mov"
    return ffmpeg("%s/m%d-%d.%s" % (work, seed, number, ext), "-f", "lavfi", "-i",
                  "testsrc2=s=320x240:r=15:d=%d,noise=alls=20:allf=t+u:all_seed=%d" % (2 + number % 3, 1000 * seed + number),
                  "-c:v", "mpeg4", "-q:v", "4", "-pix_fmt", "yuv420p")


def corpus_files(corpus, least):
    seen, found = set(), []
    for kind in ("photos", "videos", "files"):
        for folder, _, names in sorted(os.walk(os.path.join(corpus, kind))):
            for name in sorted(names):
                path = os.path.join(folder, name)
                size = os.path.getsize(path)
                content = open(path, "rb").read()
                if "hostile" in path or size < least or size > 3 << 20 or content in seen:
                    continue
                seen.add(content)
                found.append(path)
    return found


def main():
    parser = argparse.ArgumentParser()
    for name in ("corpus", "work", "out", "truth"):
        parser.add_argument(name)
    for name, value in (("mib", 64), ("seed", 1), ("photos", 60), ("movies", 8), ("least", 60000)):
        parser.add_argument("--" + name, type=int, default=value)
    parser.add_argument("--label", default="PROOF")
    parser.add_argument("--corpus-files", type=int, default=60)
    args = parser.parse_args()
    os.makedirs(args.work, exist_ok=True)
    choose = random.Random(args.seed)
    sources = [photo(args.work, args.seed, n) for n in range(args.photos)]
    sources += [movie(args.work, args.seed, n) for n in range(args.movies)]
    others = corpus_files(args.corpus, args.least)
    choose.shuffle(others)
    sources += others[:args.corpus_files]
    choose.shuffle(sources)
    with open(args.out, "wb") as image:
        image.truncate(args.mib << 20)
    run("mkfs.fat", "-F", "32", "-s", "1", "-n", args.label, "-i", "1a2b3c4d", args.out)
    os.environ["MTOOLS_SKIP_CHECK"] = "1"
    run("mmd", "-i", args.out, "::/DCIM", "::/DCIM/100PROOF")
    truth, room = [], (args.mib << 20) * 9 // 10
    with tempfile.TemporaryDirectory() as folder:
        names = []
        for number, source in enumerate(sources):
            size = os.path.getsize(source)
            if size > room:
                continue
            room -= size
            name = "IMG_%04d%s" % (number, os.path.splitext(source)[1].upper())
            shutil.copyfile(source, os.path.join(folder, name))
            names.append(name)
        run("mcopy", "-i", args.out, *[os.path.join(folder, n) for n in names], "::/DCIM/100PROOF/")
        card = open(args.out, "rb").read()
        for name in names:
            content = open(os.path.join(folder, name), "rb").read()
            at = card.find(content)
            while at % SECTOR:
                at = card.find(content, at + 1)
            assert at >= 0, name
            truth.append({"path": "DCIM/100PROOF/" + name, "size": len(content), "first": at // SECTOR,
                          "sha256": hashlib.sha256(content).hexdigest()})
    json.dump(truth, open(args.truth, "w"), indent=0)
    print("%s: %d files, %d bytes" % (args.out, len(truth), sum(t["size"] for t in truth)))


main()
