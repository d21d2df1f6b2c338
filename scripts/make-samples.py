#!/usr/bin/env python3
"""Draws the sample library: make-samples.py [FOLDER], samples/ without one.

Needs nothing but Python 3, and gives the same bytes every time. Pictures are built of filled polygons; see
Canvas. Each character is one function of a Pose; the poses stand in POSES, the phases in PHASES.
"""

import math
import struct
import sys
import zlib
from collections import namedtuple
from pathlib import Path

WIDTH, HEIGHT = 136, 152  # of a character's picture
MIDDLE, GROUND = 60, 128  # where it stands, in the coordinates it is drawn in
SHIFT = (8, 16)           # from those to the picture's
SUBLINES = 4  # a pixel row is sampled in so many lines

# ---- pixels -----------------------------------------------------------------------------------------------


class Canvas:
    """Straight-alpha pixels; shapes are lists of polygons, filled where any of them is."""

    def __init__(self, width, height, ground=None):
        self.width, self.height = width, height
        start = (*ground, 1.0) if ground else (0.0, 0.0, 0.0, 0.0)
        self.rows = [[start] * width for _ in range(height)]

    def fill(self, shape, color, opacity=1.0, inside=None):
        """Fills the shape; only where `inside`, another shape, is too. Two colors blend from top to bottom."""
        clip = self.coverage(inside) if inside is not None else None
        covered = self.coverage(shape)
        blend = color if isinstance(color[0], tuple) else (color, color)
        span = max(len(covered) - 1, 1)
        for i, y in enumerate(sorted(covered)):
            ink = tuple(a + (b - a) * i / span for a, b in zip(*blend))
            for x, part in enumerate(covered[y]):
                if clip is not None:
                    part *= clip[y][x] if y in clip else 0
                if part > 0:
                    self.rows[y][x] = over(self.rows[y][x], ink, min(part, 1.0) * opacity)

    def coverage(self, shape):
        """For each row that the shape touches, how much of each of its pixels is covered."""
        edges = [edge for polygon in shape for edge in edges_of(polygon)]
        top = max(0, math.floor(min(e[1] for e in edges)))
        bottom = min(self.height, math.ceil(max(e[3] for e in edges)))
        return {y: self.cover_row(edges, y) for y in range(top, bottom)}

    def cover_row(self, edges, y):
        row = [0.0] * (self.width + 1)
        for sub in range(SUBLINES):
            at = y + (sub + 0.5) / SUBLINES
            cuts = sorted((x0 + (at - y0) * slope, turn) for x0, y0, slope, y1, turn in edges if y0 <= at < y1)
            turns = 0
            for (left, turn), (right, _) in zip(cuts, cuts[1:]):
                turns += turn
                if turns:
                    add_span(row, max(left, 0.0), min(right, float(self.width)), 1.0 / SUBLINES)
        return row[: self.width]

    def png(self):
        rows = [bytes(channel for pixel in row for channel in to_bytes(pixel)) for row in self.rows]
        choices = (0,), (1,), (2,), (0, 2), (1, 2)
        packed = min((zlib.compress(filtered(rows, choice), 9) for choice in choices), key=len)
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 6, 0, 0, 0)
        chunks = (b"IHDR", header), (b"IDAT", packed), (b"IEND", b"")
        return b"\x89PNG\r\n\x1a\n" + b"".join(chunk(*c) for c in chunks)


def edges_of(polygon):
    """x at its top, top, slope, bottom and direction of each edge that is not level; turning the same way round."""
    if sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(polygon, polygon[1:] + polygon[:1])) < 0:
        polygon = polygon[::-1]
    for (x0, y0), (x1, y1) in zip(polygon, polygon[1:] + polygon[:1]):
        if y0 != y1:
            slope = (x1 - x0) / (y1 - y0)
            yield (x0, y0, slope, y1, 1) if y0 < y1 else (x1, y1, slope, y0, -1)


def add_span(row, left, right, weight):
    if right <= left:
        return
    first, last = int(left), int(right)
    if first == last:
        row[first] += (right - left) * weight
        return
    row[first] += (first + 1 - left) * weight
    for x in range(first + 1, last):
        row[x] += weight
    row[last] += (right - last) * weight


def over(under, ink, alpha):
    below = under[3] * (1 - alpha)
    total = alpha + below
    return (*((i * alpha + u * below) / total for i, u in zip(ink, under)), total)


def to_bytes(pixel):
    """In steps of 5, of 15 for the alpha: not to be seen, and a third smaller when packed."""
    alpha = round(pixel[3] * 17) * 15
    return (*(min(255, round(c / 5) * 5) for c in pixel[:3]), alpha) if alpha else (0, 0, 0, 0)


def filtered(rows, choice):
    """Rows as they are (0), as differences to the pixel before (1) or to the row above (2): whichever of the
    choice looks smallest for each row."""
    blank = bytes(len(rows[0]))
    result = []
    for row, above in zip(rows, [blank] + rows):
        references = blank, b"\0\0\0\0" + row, above
        forms = [bytes((a - b) & 0xFF for a, b in zip(row, reference)) for reference in references]
        best = min(choice, key=lambda kind: sum(min(byte, 256 - byte) for byte in forms[kind]))
        result.append(bytes([best]) + forms[best])
    return b"".join(result)


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


# ---- shapes -----------------------------------------------------------------------------------------------


def ellipse(x, y, rx, ry=None, turn=0):
    points = [(math.cos(t) * rx, math.sin(t) * (ry or rx)) for t in (i * math.tau / 48 for i in range(48))]
    return [[(x + px, y + py) for px, py in turned(points, turn)]]


def block(left, top, right, bottom, radius):
    corners = (right - radius, bottom - radius, 0), (left + radius, bottom - radius, 1)
    corners += (left + radius, top + radius, 2), (right - radius, top + radius, 3)
    arc = [i * math.pi / 16 for i in range(9)]
    return [[(x + math.cos(q * math.pi / 2 + a) * radius, y + math.sin(q * math.pi / 2 + a) * radius)
             for x, y, q in corners for a in arc]]


def polygon(*points):
    return [list(points)]


def line(points, width, end=None):
    """A line with round ends, `width` wide at its start and `end` wide at its end."""
    end = width if end is None else end
    radii = [(width + (end - width) * i / max(len(points) - 1, 1)) / 2 for i in range(len(points))]
    shape = [ellipse(x, y, r)[0] for (x, y), r in zip(points, radii)]
    for (a, ra), (b, rb) in zip(zip(points, radii), zip(points[1:], radii[1:])):
        length = math.dist(a, b) or 1
        nx, ny = (a[1] - b[1]) / length, (b[0] - a[0]) / length
        shape.append([(a[0] + nx * ra, a[1] + ny * ra), (b[0] + nx * rb, b[1] + ny * rb),
                      (b[0] - nx * rb, b[1] - ny * rb), (a[0] - nx * ra, a[1] - ny * ra)])
    return shape


def curve(*controls, steps=14):
    """Points along a Bezier curve."""
    def at(t, points):
        while len(points) > 1:
            points = [(a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t) for a, b in zip(points, points[1:])]
        return points[0]
    return [at(i / steps, list(controls)) for i in range(steps + 1)]


def turned(points, degrees):
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return [(x * c - y * s, x * s + y * c) for x, y in points]


def grown(shape, by):
    """The shape with a band around it, for outlines."""
    return shape + [part for p in shape for part in line(p + p[:1], by * 2)]


def reach(start, length, degrees):
    """Where a limb ends that hangs down at 0 degrees and swings forward, to the right, with greater ones."""
    return (start[0] + math.sin(math.radians(degrees)) * length, start[1] + math.cos(math.radians(degrees)) * length)


# ---- what the characters share -----------------------------------------------------------------------------

# Degrees of legs and arms (back, front), how far the body is raised, how far it is off the ground, the face.
Pose = namedtuple("Pose", "legs arms lift air mouth blink", defaults=((0, 0), (-14, 14), 0, 0, "smile", False))

POSES = {
    "stand": Pose(legs=(-5, 5)),
    "blink": Pose(legs=(-5, 5), blink=True),
    "walk-1": Pose(legs=(-30, 30), arms=(34, -34)),
    "walk-2": Pose(legs=(-8, 6), arms=(10, -10), lift=3),
    "walk-3": Pose(legs=(30, -30), arms=(-34, 34)),
    "walk-4": Pose(legs=(6, -8), arms=(-10, 10), lift=3),
    "wave-1": Pose(legs=(-5, 5), arms=(-16, 128), mouth="open"),
    "wave-2": Pose(legs=(-5, 5), arms=(-16, 160), mouth="open", blink=True),
    "jump-1": Pose(legs=(-16, 16), arms=(-40, 40), lift=-5),
    "jump-2": Pose(legs=(-34, 34), arms=(-140, 140), lift=4, air=14, mouth="open"),
}

INK = (58, 52, 66)
WHITE = (255, 255, 255)
BLUSH = (246, 140, 140)


class Puppet:
    """A character's picture while it is drawn, in one pose."""

    def __init__(self, pose):
        self.canvas, self.pose = Canvas(WIDTH, HEIGHT), pose
        self.up = pose.air + pose.lift  # how much higher than standing the body is
        width = 30 - pose.air * 0.7
        self.canvas.fill(ellipse(MIDDLE + SHIFT[0], GROUND + SHIFT[1] + 2, width, 4.5), (40, 44, 60), 0.16)

    def at(self, x, y):
        return (x + SHIFT[0], y + SHIFT[1] - self.up)

    def on_ground(self, point, above):
        """The point, or the one above the ground at its side when it lies lower."""
        return (point[0], min(point[1], GROUND + SHIFT[1] - above - self.pose.air))

    def paint(self, shape, color, edge=None, opacity=1.0, inside=None):
        if edge:
            self.canvas.fill(grown(shape, 1.1), edge)
        self.canvas.fill(shape, color, opacity, inside)

    def leg(self, side, color, edge, foot, width=10, length=25):
        hip = self.at(MIDDLE + (-8, 8)[side], 102)
        angle = self.pose.legs[side]
        end = self.on_ground(reach(hip, length + self.pose.lift * 0.8, angle), 4)
        self.paint(line([hip, end], width), color, edge)
        self.paint(ellipse(end[0] + 3, end[1] + 1, width * 0.75, width * 0.5, -angle * 0.3), foot, edge)

    def arm(self, side, shoulder, color, edge, hand, width=9, length=24):
        end = reach(shoulder, length, self.pose.arms[side])
        self.paint(line([shoulder, end], width, width * 0.9), color, edge)
        self.paint(ellipse(*end, width * 0.62), hand, edge)

    def eyes(self, left, right, size, iris, shine=WHITE):
        for x, y in (left, right):
            if self.pose.blink:
                self.paint(line(curve((x - size, y), (x, y + size * 0.9), (x + size, y)), 2.4), INK)
                continue
            self.paint(ellipse(x, y, size, size * 1.15), iris)
            self.paint(ellipse(x - size * 0.28, y - size * 0.4, size * 0.36), shine)
            self.paint(ellipse(x + size * 0.3, y + size * 0.45, size * 0.18), shine, opacity=0.8)

    def mouth(self, x, y, size):
        if self.pose.mouth == "open":
            low = y + size * 1.9
            shape = [curve((x - size, y), (x - size * 0.8, low), (x + size * 0.8, low), (x + size, y))]
            self.paint(shape, (150, 52, 64))
            self.paint(ellipse(x, y + size * 1.3, size * 0.6, size * 0.5), (238, 120, 120), inside=shape)
        else:
            self.paint(line(curve((x - size, y), (x, y + size * 1.1), (x + size, y)), 2), INK)

    def blush(self, left, right):
        for x, y in (left, right):
            self.paint(ellipse(x, y, 4.6, 3), BLUSH, opacity=0.5)


# ---- the characters ----------------------------------------------------------------------------------------


def ada(pose):
    """The robot: mint tin, a face of light, a heart that glows."""
    p = Puppet(pose)
    tin, shade, edge, dark = ((170, 226, 212), (112, 190, 178)), (86, 158, 150), (38, 92, 92), (46, 66, 84)
    p.leg(0, shade, edge, (70, 120, 124), 9)
    p.arm(0, p.at(40, 80), shade, edge, (70, 120, 124), 8)
    p.leg(1, tin[1], edge, (92, 150, 150), 9)
    p.paint(block(*p.at(39, 70), *p.at(81, 108), 12), tin, edge)
    p.paint(block(*p.at(46, 77), *p.at(74, 97), 6), (222, 246, 240))
    x, y = p.at(60, 86)
    heart = ellipse(x - 3.6, y - 1.5, 4.4) + ellipse(x + 3.6, y - 1.5, 4.4)
    p.paint(heart + polygon((x - 7.4, y + 0.8), (x + 7.4, y + 0.8), (x, y + 9)), (240, 104, 112))
    p.paint(ellipse(x - 3.8, y - 3, 1.4), WHITE, opacity=0.8)
    for dx in (-9, 0, 9):
        p.paint(ellipse(*p.at(60 + dx, 102.5), 1.7), shade)
    p.paint(line([p.at(60, 24), p.at(60, 14)], 3), shade, edge)
    p.paint(ellipse(*p.at(60, 11), 5), (255, 206, 92), (196, 138, 36))
    p.paint(ellipse(*p.at(58.4, 9.4), 1.6), WHITE, opacity=0.85)
    p.paint(block(*p.at(27, 36), *p.at(36, 56), 4) + block(*p.at(84, 36), *p.at(93, 56), 4), shade, edge)
    p.paint(block(*p.at(31, 22), *p.at(89, 68), 17), tin, edge)
    screen = block(*p.at(37, 29), *p.at(83, 61), 12)
    p.paint(screen, (dark, (30, 46, 62)))
    p.paint(polygon(p.at(44, 29), p.at(56, 29), p.at(44, 61), p.at(34, 61)), WHITE, opacity=0.07, inside=screen)
    glow = (130, 240, 226)
    for x in (51, 71):
        if pose.blink:
            p.paint(line(curve(p.at(x - 5, 44), p.at(x, 37), p.at(x + 5, 44)), 2.8), glow)
        else:
            p.paint(ellipse(*p.at(x, 42), 8), glow, opacity=0.18)
            p.paint(block(*p.at(x - 4, 36), *p.at(x + 4, 48), 4), glow)
            p.paint(ellipse(*p.at(x - 1, 39.5), 1.5), WHITE)
    if pose.mouth == "open":
        p.paint([curve(p.at(55, 51), p.at(56, 59), p.at(66, 59), p.at(67, 51))], glow)
    else:
        p.paint(line(curve(p.at(56, 52), p.at(61, 57), p.at(66, 52)), 2.2), glow)
    p.arm(1, p.at(80, 80), tin[1], edge, (92, 150, 150), 8)
    return p.canvas


def cat_ears(p, fur, edge, inner):
    for side in (-1, 1):
        p.paint(polygon(p.at(60 + side * 27, 40), p.at(60 + side * 25, 13), p.at(60 + side * 7, 27)), fur, edge)
        p.paint(polygon(p.at(60 + side * 24, 36), p.at(60 + side * 22.6, 20), p.at(60 + side * 11, 29)), inner)


def bo(pose):
    """The cat: blue-grey stripes, a white bib and a red scarf."""
    p = Puppet(pose)
    fur, shade, edge, stripe = ((148, 164, 192), (122, 138, 170)), (104, 118, 150), (62, 70, 98), (92, 106, 140)
    tail = curve(p.at(44, 104), p.at(10, 108), p.at(30, 74), p.at(12 + abs(pose.lift) * 2, 66))
    p.paint(line(tail, 10, 7), shade, edge)
    p.paint(line(tail[-4:], 7.6, 7), stripe)
    p.leg(0, shade, edge, (216, 222, 234))
    p.arm(0, p.at(44, 78), shade, edge, (216, 222, 234))
    p.leg(1, fur[1], edge, WHITE)
    body = ellipse(*p.at(60, 90), 20, 22)
    p.paint(body, fur, edge)
    p.paint(ellipse(*p.at(62, 94), 12, 16), (240, 243, 250), inside=body)
    cat_ears(p, fur[0], edge, (240, 172, 178))
    head = ellipse(*p.at(60, 46), 32, 25)
    p.paint(head, fur, edge)
    for x, y, top in ((60, 31, 20), (50, 30, 22), (70, 30, 22)):
        p.paint(line([p.at(x, top), p.at(x, y)], 4, 2.4), stripe, inside=head)
    for side in (-1, 1):
        p.paint(line([p.at(60 + side * 34, 45), p.at(60 + side * 24, 47)], 3.6, 2), stripe, inside=head)
        p.paint(line([p.at(60 + side * 33, 54), p.at(60 + side * 24, 53)], 3.6, 2), stripe, inside=head)
    p.paint(ellipse(*p.at(57, 57), 8.4, 6.6) + ellipse(*p.at(67, 57), 8.4, 6.6), (240, 243, 250))
    p.eyes(p.at(49, 44), p.at(75, 44), 5.6, (44, 60, 54))
    p.blush(p.at(41, 54), p.at(83, 54))
    p.paint(polygon(p.at(58.6, 51), p.at(65.4, 51), p.at(62, 55)), (232, 120, 132), (200, 92, 106))
    p.mouth(*p.at(62, 58), 4.4)
    for side in (-1, 1):
        for y in (-2, 3):
            whisker = p.at(62 + side * 18, 55 + y * 0.5), p.at(62 + side * 31, 54 + y * 1.6)
            p.paint(line(whisker, 1), WHITE, opacity=0.8)
    scarf = curve(p.at(42, 68), p.at(60, 80), p.at(78, 68))
    p.paint(line(scarf, 8), (228, 84, 84), (164, 46, 56))
    p.paint(line([p.at(49, 73), p.at(44, 88)], 7, 8), (228, 84, 84), (164, 46, 56))
    p.arm(1, p.at(76, 79), fur[1], edge, WHITE)
    return p.canvas


def kit(pose):
    """The fox: a tail as big as itself, black socks, a green leaf on its chest."""
    p = Puppet(pose)
    fur, shade, edge, sock = ((248, 160, 84), (236, 126, 58)), (212, 104, 44), (124, 56, 28), (74, 52, 56)
    cream = (255, 242, 224)
    sway = abs(pose.lift) * 2
    tail = curve(p.at(46, 106), p.at(14, 118), p.at(4, 88), p.at(16 + sway, 62))
    p.paint(line(tail[:9], 10, 24) + line(tail[8:13], 24, 16) + line(tail[12:], 16, 3), fur[1], edge)
    p.paint(line(tail[10:13], 17, 14) + line(tail[12:], 14, 2), cream)
    p.leg(0, shade, edge, sock)
    p.arm(0, p.at(44, 79), shade, edge, sock)
    p.leg(1, fur[1], edge, sock)
    body = ellipse(*p.at(60, 90), 19, 22)
    p.paint(body, fur, edge)
    p.paint(polygon(p.at(47, 66), p.at(76, 66), p.at(70, 98), p.at(62, 108), p.at(54, 98)), cream, inside=body)
    for side in (-1, 1):
        p.paint(polygon(p.at(60 + side * 29, 44), p.at(60 + side * 29, 8), p.at(60 + side * 5, 27)), fur[0], edge)
        p.paint(polygon(p.at(60 + side * 25.6, 34), p.at(60 + side * 26, 17), p.at(60 + side * 12, 27)), sock)
    chin = polygon(p.at(30, 46), p.at(90, 46), p.at(72, 64), p.at(62, 70), p.at(52, 66))
    face = ellipse(*p.at(60, 44), 31, 22) + chin
    p.paint(face, fur, edge)
    cheeks = polygon(p.at(28, 48), p.at(50, 50), p.at(62, 58), p.at(74, 50), p.at(94, 48), p.at(76, 72), p.at(48, 72))
    p.paint(cheeks, cream, inside=face)
    p.eyes(p.at(48, 44), p.at(75, 44), 5, (66, 42, 36))
    p.blush(p.at(40, 54), p.at(83, 54))
    p.paint(ellipse(*p.at(62, 55), 4.4, 3.2), INK)
    p.paint(ellipse(*p.at(60.8, 54), 1.2), WHITE, opacity=0.8)
    p.mouth(*p.at(62, 60), 3.6)
    leaf = curve(p.at(60, 92), p.at(50, 84), p.at(58, 76), p.at(66, 74))
    leaf += curve(p.at(66, 74), p.at(70, 84), p.at(66, 90), p.at(60, 92))
    p.paint([leaf], (126, 190, 96), (70, 130, 60))
    p.paint(line([p.at(58, 95), p.at(64, 79)], 1.4), (70, 130, 60))
    p.arm(1, p.at(76, 80), fur[1], edge, sock)
    return p.canvas


def wing(p, side, color, edge, feather):
    shoulder = p.at(60 + (-1, 1)[side] * 27, 72)
    angle = p.pose.arms[side] * 0.85 + (-1, 1)[side] * 8
    for length, spread in ((32, 10), (34, 0), (30, -10)):
        tip = reach(shoulder, length, angle + spread * (-1, 1)[side])
        p.paint(line([shoulder, tip], 15, 8), color if spread else feather, edge)
    p.paint(ellipse(*shoulder, 8), color)


def zoe(pose):
    """The owl: plum feathers, eyes like lamps, far too fond of cocoa."""
    p = Puppet(pose)
    plum, shade, edge, light = ((158, 128, 190), (124, 96, 162)), (108, 82, 146), (64, 46, 92), (232, 218, 242)
    for side in (0, 1):
        hip = p.at(60 + (-9, 9)[side], 112)
        end = p.on_ground(reach(hip, 12 + pose.lift * 0.8, pose.legs[side] * 0.8), 3)
        p.paint(line([hip, end], 5), (240, 172, 70), (164, 104, 28))
        for toe in (-5, 0, 5):
            p.paint(line([end, (end[0] + toe + 2, end[1] + 2)], 4), (240, 172, 70), (164, 104, 28))
    wing(p, 0, shade, edge, plum[1])
    for side in (-1, 1):
        p.paint(polygon(p.at(60 + side * 31, 46), p.at(60 + side * 31, 14), p.at(60 + side * 8, 28)), plum[0], edge)
    body = ellipse(*p.at(60, 72), 34, 46)
    p.paint(body, plum, edge)
    belly = ellipse(*p.at(62, 94), 23, 26)
    p.paint(belly, light, inside=body)
    for row, y in enumerate((84, 92, 100, 108)):
        for i in range(-2, 3):
            x = 62 + i * 9 + row % 2 * 4.5
            p.paint(line(curve(p.at(x - 4, y), p.at(x, y + 5), p.at(x + 4, y)), 1.8), shade, opacity=0.5, inside=belly)
    for x in (45, 77):
        p.paint(ellipse(*p.at(x, 50), 16.5), light, plum[1])
        if not pose.blink:
            p.paint(ellipse(*p.at(x + 1, 50), 11), (255, 202, 84), (206, 146, 40))
    p.eyes(p.at(47, 50), p.at(79, 50), 6.6, (44, 34, 56))
    beak = polygon(p.at(55, 58), p.at(69, 58), p.at(62, 70))
    if pose.mouth == "open":
        p.paint(polygon(p.at(57, 62), p.at(67, 62), p.at(62, 75)), (190, 84, 70), (150, 60, 50))
    p.paint(beak, ((250, 190, 84), (234, 150, 52)), (164, 104, 28))
    p.blush(p.at(33, 66), p.at(90, 66))
    wing(p, 1, plum[1], edge, plum[0])
    return p.canvas


# ---- props and the meadow ----------------------------------------------------------------------------------


def prop(draw):
    canvas = Canvas(96, 96)
    draw(lambda shape, color, edge=None, opacity=1.0, inside=None: (
        canvas.fill(grown(shape, 1.1), edge) if edge else None, canvas.fill(shape, color, opacity, inside)))
    return canvas


def ball(paint):
    disc = ellipse(48, 48, 36)
    paint(disc, ((255, 255, 255), (226, 232, 240)), (90, 96, 120))
    for turn, color in ((0, (236, 96, 96)), (120, (255, 200, 84)), (240, (96, 164, 226))):
        corners = [(0, 0)] + [(math.cos(t) * 40, math.sin(t) * 40) for t in (i * 0.1 for i in range(11))]
        paint([[(48 + x, 48 + y) for x, y in turned(corners, turn - 30)]], color, inside=disc)
    paint(ellipse(48, 48, 7), WHITE, (90, 96, 120))
    paint(ellipse(36, 32, 10, 6, -40), WHITE, opacity=0.5)


def kite(paint):
    paint(line(curve((48, 66), (30, 78), (62, 84), (40, 94)), 1.6), INK)
    corners = (48, 6), (78, 34), (48, 70), (18, 34)
    paint([list(corners)], (120, 196, 226), (44, 104, 140))
    paint(polygon(corners[0], corners[1], (48, 34)), (255, 206, 92))
    paint(polygon(corners[2], corners[3], (48, 34)), (255, 206, 92))
    for x, y in ((44, 78), (51, 86)):
        bow = polygon((x, y), (x - 8, y - 4), (x - 8, y + 5)) + polygon((x, y), (x + 8, y - 5), (x + 8, y + 4))
        paint(bow, (236, 96, 96))


def flower(paint):
    paint(line(curve((48, 92), (44, 70), (48, 46)), 4.5), (92, 164, 88), (50, 112, 60))
    leaf = curve((46, 80), (60, 82), (74, 70), (76, 60)) + curve((76, 60), (60, 60), (50, 68), (46, 80))
    paint([leaf], (126, 190, 96), (50, 112, 60))
    for i in range(6):
        (dx, dy), = turned([(0, -19)], i * 60)
        paint(ellipse(48 + dx, 34 + dy, 9, 13, i * 60), (246, 158, 186), (182, 84, 122))
    paint(ellipse(48, 34, 11), ((255, 222, 110), (246, 186, 70)), (182, 124, 36))
    paint(ellipse(44, 33, 1.8) + ellipse(52, 33, 1.8), INK)
    paint(line(curve((44, 38), (48, 42), (52, 38)), 1.8), INK)


def star(paint):
    points = [(48 + math.sin(i * math.pi / 5) * r, 51 - math.cos(i * math.pi / 5) * r)
              for i in range(10) for r in ((40, 20)[i % 2],)]
    paint(grown([points], 3), (206, 146, 40))
    paint(grown([points], 1.5), ((255, 226, 116), (250, 186, 66)))
    paint(ellipse(41, 48, 2.6, 3.6) + ellipse(55, 48, 2.6, 3.6), INK)
    paint(line(curve((42, 56), (48, 62), (54, 56)), 2.2), INK)
    paint(ellipse(35, 55, 4, 2.6) + ellipse(61, 55, 4, 2.6), BLUSH, opacity=0.6)


def umbrella(paint):
    paint(line([(48, 14), (48, 78)], 3.4) + line(curve((48, 78), (48, 92), (62, 92), (62, 82)), 3.4), (150, 104, 70))
    dome = [[(8, 50)] + curve((8, 50), (10, 8), (86, 8), (88, 50))]
    paint(dome, (112, 128, 214), (54, 62, 130))
    panel = curve((34, 50), (32, 24), (44, 12), (48, 14)) + curve((48, 14), (52, 12), (64, 24), (62, 50))
    paint([panel], (248, 230, 150), inside=dome)
    for x in (8, 35, 61):
        color = (112, 128, 214) if x != 35 else (248, 230, 150)
        paint(ellipse(x + 13.4, 53, 13.2, 6), color, inside=block(8, 40, 88, 50, 1))


def cocoa(paint):
    for x in (34, 46, 58):
        paint(line(curve((x, 30), (x - 8, 22), (x + 8, 14), (x, 6)), 3), (170, 160, 170), opacity=0.5)
    paint(line(curve((66, 48), (92, 44), (90, 76), (64, 74)), 6), (232, 116, 104), (150, 60, 56))
    cup = block(20, 38, 72, 88, 12)
    paint(cup, ((244, 140, 124), (224, 104, 96)), (150, 60, 56))
    paint(ellipse(46, 40, 25, 7), (120, 76, 56), (150, 60, 56))
    paint(ellipse(40, 38, 6, 4) + ellipse(51, 40, 6, 4), WHITE, (220, 210, 204))
    paint(polygon((46, 74), (36, 63), (56, 63)) + ellipse(41, 61, 5.4) + ellipse(51, 61, 5.4), (255, 240, 226))


def meadow():
    """An opaque picture, so that not everything in the library is cut out."""
    width, height = 480, 300
    canvas = Canvas(width, height, (255, 255, 255))
    canvas.fill(block(-5, -5, width + 5, 240, 1), ((138, 198, 244), (224, 242, 254)))
    canvas.fill(ellipse(390, 70, 58), (255, 244, 190), 0.5)
    canvas.fill(ellipse(390, 70, 36), (255, 222, 116))
    for x, y, r in ((90, 66, 22), (118, 56, 28), (148, 68, 20), (250, 40, 14), (268, 34, 18), (288, 42, 13)):
        canvas.fill(ellipse(x, y, r, r * 0.72), WHITE, 0.92)
    canvas.fill(ellipse(90, 330, 260, 150), ((150, 206, 140), (120, 184, 118)))
    canvas.fill(ellipse(400, 340, 270, 140), ((128, 192, 118), (96, 164, 100)))
    canvas.fill(ellipse(200, 380, 380, 150), ((142, 204, 110), (98, 170, 88)))
    path = curve((180, 305), (220, 270), (250, 262), (236, 244))
    path += curve((250, 244), (276, 262), (262, 275), (250, 305))
    canvas.fill([path], (240, 222, 176))
    for x, y, size in ((70, 190, 1.0), (430, 205, 1.3), (346, 200, 0.8)):
        canvas.fill(line([(x, y + 26 * size), (x, y)], 7 * size), (146, 104, 76))
        canvas.fill(ellipse(x, y - 22 * size, 22 * size, 30 * size), ((104, 178, 112), (70, 142, 92)))
        canvas.fill(ellipse(x - 7 * size, y - 32 * size, 7 * size, 11 * size), WHITE, 0.14)
    blooms = (246, 158, 186), (255, 232, 140), WHITE, (190, 166, 232)
    for i in range(46):
        x, y = (i * 197 + i * i * 31) % width, 262 + (i * 29) % 34
        for petal in range(5):
            (dx, dy), = turned([(0, -2.8)], petal * 72)
            canvas.fill(ellipse(x + dx, y + dy, 2), blooms[i % 4])
        canvas.fill(ellipse(x, y, 1.5), (250, 190, 70))
    return canvas


# ---- the library -------------------------------------------------------------------------------------------

ALL = list(POSES)
WALK = ["walk-1", "walk-2", "walk-3", "walk-4"]
WAVE = ["stand", "wave-1", "wave-2", "wave-1", "wave-2", "stand", "blink"]
JUMP = ["stand", "jump-1", "jump-2", "jump-1", "stand"]
CHARACTERS = {"Ada the robot": ada, "Bo the cat": bo, "Kit the fox": kit, "Zo\u00eb the owl": zoe}
PROPS = {"ball": ball, "cocoa": cocoa, "flower": flower, "kite": kite, "star": star, "umbrella": umbrella}


def write_phase(path, names):
    path.write_text("".join(f"{name}\n" for name in names), encoding="utf-8")


def make_library(root):
    for folder, draw in CHARACTERS.items():
        home = root / folder
        home.mkdir(parents=True, exist_ok=True)
        for name, pose in POSES.items():
            (home / f"{name}.png").write_bytes(draw(pose).png())
        for phase, names in (("walk", WALK), ("wave", WAVE), ("jump", JUMP)):
            write_phase(home / f"{phase}.phase", [f"{name}.png" for name in names])
    (root / "Props").mkdir(exist_ok=True)
    for name, draw in PROPS.items():
        (root / "Props" / f"{name}.png").write_bytes(prop(draw).png())
    (root / "meadow.png").write_bytes(meadow().png())
    write_phase(root / "everybody waves.phase",
                [f"{folder}/{name}.png" for name in ("stand", "wave-1", "wave-2") for folder in CHARACTERS])


if __name__ == "__main__":
    make_library(Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "samples")
