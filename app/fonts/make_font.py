#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes a small TrueType font out of a large OpenType one (Debian: python3-fonttools, fonts-noto-cjk).

  make_font.py COLLECTION FAMILY-IN-IT NEW-FAMILY CHARACTERS.txt TARGET.ttf

The result keeps its source's licence and copyright line and takes a name of its own: a modified font may not go by a name
that its makers have reserved.
"""
import sys

from fontTools import subset
from fontTools.misc.timeTools import timestampFromString
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTCollection, newTable

MAX_ERROR = 1.0  # font units, of 1000 to the em
COPYRIGHT, FAMILY, STYLE, UNIQUE, FULL, VERSION, POSTSCRIPT, LICENCE, LICENCE_URL = 0, 1, 2, 3, 4, 5, 6, 13, 14
LATIN_1, SIMPLIFIED_CHINESE = 1 << 0, 1 << 18


def face_of(collection, family):
    for font in TTCollection(collection).fonts:
        if font["name"].getDebugName(FAMILY) == family:
            return font
    sys.exit(f"{collection} holds no {family}")


def cut_down(font, characters):
    options = subset.Options()
    options.hinting = False
    options.layout_features = []
    options.notdef_outline = True
    options.name_IDs = ["*"]
    options.drop_tables += ["BASE", "GPOS", "GSUB", "VORG", "vhea", "vmtx"]
    cutter = subset.Subsetter(options)
    cutter.populate(text=characters)
    cutter.subset(font)


def to_quadratic(font):
    glyphs = font.getGlyphSet()
    order = font.getGlyphOrder()
    outlines = {}
    for name in order:
        pen = TTGlyphPen(None)
        glyphs[name].draw(Cu2QuPen(pen, MAX_ERROR, reverse_direction=True))
        outlines[name] = pen.glyph()
    del font["CFF "]
    glyf = font["glyf"] = newTable("glyf")
    glyf.glyphOrder = order
    glyf.glyphs = outlines
    font["loca"] = newTable("loca")
    font["head"].glyphDataFormat = 0
    maxp = font["maxp"]
    maxp.tableVersion = 0x00010000
    for field in ("maxZones", "maxTwilightPoints", "maxStorage", "maxFunctionDefs", "maxInstructionDefs", "maxStackElements",
                  "maxSizeOfInstructions", "maxComponentElements", "maxPoints", "maxContours", "maxCompositePoints",
                  "maxCompositeContours", "maxComponentDepth"):
        setattr(maxp, field, 1 if field == "maxZones" else 0)
    post = font["post"]
    post.formatType = 3.0
    font.sfntVersion = "\000\001\000\000"


def rename(font, family):
    names = font["name"]
    kept = {name: names.getDebugName(name) for name in (COPYRIGHT, VERSION, LICENCE, LICENCE_URL)}
    names.names = []
    postscript = family.replace(" ", "") + "-Regular"
    texts = {**kept, FAMILY: family, STYLE: "Regular", UNIQUE: postscript, FULL: family, POSTSCRIPT: postscript}
    for name, text in texts.items():
        names.setName(text, name, 3, 1, 0x409)


def main():
    collection, source, family, list_file, target = sys.argv[1:]
    with open(list_file, encoding="utf-8") as listed:
        characters = "".join(listed.read().split()) + " \u3000"
    font = face_of(collection, source)
    cut_down(font, characters)
    to_quadratic(font)
    rename(font, family)
    # What the system lists it under: western and simplified Chinese text.
    font["OS/2"].ulCodePageRange1 = LATIN_1 | SIMPLIFIED_CHINESE
    font["OS/2"].ulCodePageRange2 = 0
    # The same source gives the same file.
    font.recalcTimestamp = False
    font["head"].modified = font["head"].created = timestampFromString("Thu Jan  1 00:00:00 2026")
    font.save(target)


main()
