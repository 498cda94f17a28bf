#!/usr/bin/python3
"""make_big_movie.py MADE OUT.img: a medium of 5 GiB (sparse) with one MP4 of more than 4 GiB from sector 64 on: the
first movie of MADE with a media box of 64-bit length, and its index behind that."""
import glob, struct, sys

movie = open(sorted(glob.glob(sys.argv[1] + "/*.mp4"))[0], "rb").read()
boxes, at = {}, 0
while at < len(movie):
    size, kind = struct.unpack(">I4s", movie[at:at + 8])
    boxes[kind] = (at, size)
    at += size
ftyp, data, index = (movie[boxes[k][0]:sum(boxes[k])] for k in (b"ftyp", b"mdat", b"moov"))
data, index = data[8:], bytearray(index)
shift = len(ftyp) + 16 - (boxes[b"mdat"][0] + 8)
at = index.find(b"stco")
while at >= 0:
    for i in range(struct.unpack(">I", index[at + 8:at + 12])[0]):
        place = at + 12 + 4 * i
        index[place:place + 4] = struct.pack(">I", struct.unpack(">I", index[place:place + 4])[0] + shift)
    at = index.find(b"stco", at + 4)
length = (4 << 30) + (200 << 20)
with open(sys.argv[2], "wb") as medium:
    medium.truncate(5 << 30)
    medium.seek(64 * 512)
    medium.write(ftyp + struct.pack(">I4sQ", 1, b"mdat", 16 + length) + data)
    medium.seek(64 * 512 + len(ftyp) + 16 + length)
    medium.write(index)
