"""Curves: smooth outlines through points, mirrors, flattening, inside tests.

Paths use the absolute commands M, L, C, Q and Z only, so every tool here can read what
another one wrote.
"""

import math
import re

TOKEN = re.compile(r"[MLCQZ]|-?\d+\.?\d*(?:e-?\d+)?")


def num(value):
    """A coordinate as text: two decimals at most, no trailing zeros."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def pts(*points):
    return " ".join(f"{num(x)},{num(y)}" for x, y in points)


def spline(points, closed=False, tension=1.0):
    """A smooth path through `points`. A point (x, y, 0) is a sharp corner."""
    count = len(points)
    xy = [(p[0], p[1]) for p in points]
    sharp = [len(p) > 2 and p[2] == 0 for p in points]

    def tangent(i):
        if sharp[i]:
            return (0.0, 0.0)
        if closed:
            before, after = xy[(i - 1) % count], xy[(i + 1) % count]
        else:
            before, after = xy[max(i - 1, 0)], xy[min(i + 1, count - 1)]
        return (after[0] - before[0], after[1] - before[1])

    def unit_handle(i, length):
        tx, ty = tangent(i)
        size = math.hypot(tx, ty)
        if size == 0:
            return (0.0, 0.0)
        k = length * tension / 3.0 / size
        return (tx * k, ty * k)

    out = [f"M {pts(xy[0])}"]
    last = count if closed else count - 1
    for i in range(last):
        j = (i + 1) % count
        length = math.hypot(xy[j][0] - xy[i][0], xy[j][1] - xy[i][1])
        hx, hy = unit_handle(i, length)
        gx, gy = unit_handle(j, length)
        out.append("C " + pts((xy[i][0] + hx, xy[i][1] + hy), (xy[j][0] - gx, xy[j][1] - gy), xy[j]))
    if closed:
        out.append("Z")
    return " ".join(out)


def poly(points, closed=True):
    return "M " + " L ".join(pts(p) for p in points) + (" Z" if closed else "")


def parse(path):
    """[(command, [points])] of a path."""
    items = []
    need = {"M": 1, "L": 1, "C": 3, "Q": 2}
    tokens = TOKEN.findall(path)
    i = 0
    command = None
    while i < len(tokens):
        if tokens[i] in "MLCQZ":
            command = tokens[i]
            i += 1
            if command == "Z":
                items.append(("Z", []))
                continue
        n = need[command]
        values = [float(t) for t in tokens[i:i + 2 * n]]
        i += 2 * n
        items.append((command, list(zip(values[0::2], values[1::2]))))
        if command == "M":
            command = "L"
    return items


def unparse(items):
    return " ".join(c if c == "Z" else f"{c} {pts(*p)}" for c, p in items)


def transform(path, fn):
    return unparse([(c, [fn(x, y) for x, y in p]) for c, p in parse(path)])


def mirror(path, axis=0.0):
    return transform(path, lambda x, y: (2 * axis - x, y))


def flatten(path, steps=8):
    """The path as closed or open polygons (lists of points)."""
    polygons = []
    here = (0.0, 0.0)
    for command, p in parse(path):
        if command == "M":
            polygons.append([p[0]])
        elif command == "L":
            polygons[-1].append(p[0])
        elif command == "C":
            for k in range(1, steps + 1):
                t = k / steps
                u = 1 - t
                polygons[-1].append(tuple(
                    u ** 3 * here[a] + 3 * u * u * t * p[0][a] + 3 * u * t * t * p[1][a] + t ** 3 * p[2][a]
                    for a in (0, 1)))
        elif command == "Q":
            for k in range(1, steps + 1):
                t = k / steps
                u = 1 - t
                polygons[-1].append(tuple(
                    u * u * here[a] + 2 * u * t * p[0][a] + t * t * p[1][a] for a in (0, 1)))
        if p:
            here = p[-1]
    return polygons


def inside(polygons, x, y):
    """Even-odd test of a point against flattened polygons."""
    odd = False
    for polygon in polygons:
        j = len(polygon) - 1
        for i, (xi, yi) in enumerate(polygon):
            xj, yj = polygon[j]
            if (yi > y) != (yj > y) and x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                odd = not odd
            j = i
    return odd


def disc_inside(polygons, x, y, radius):
    """True when a disc lies wholly in the shape: its rim is probed at twelve points."""
    return all(inside(polygons, x + radius * math.cos(a * math.pi / 6), y + radius * math.sin(a * math.pi / 6))
               for a in range(12))


def bounds(polygons):
    xs = [x for polygon in polygons for x, _ in polygon]
    ys = [y for polygon in polygons for _, y in polygon]
    return min(xs), min(ys), max(xs), max(ys)


def hatch(path, angle, gap, inset=0.0, phase=0.0):
    """Parallel line pieces that fill a shape: [((x1, y1), (x2, y2))]."""
    ca, sa = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    turned = [[(x * ca + y * sa, -x * sa + y * ca) for x, y in polygon] for polygon in flatten(path)]
    _, low, _, high = bounds(turned)
    pieces = []
    y = low + gap / 2 + phase
    while y < high:
        cuts = []
        for polygon in turned:
            for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]):
                if (y1 > y) != (y2 > y):
                    cuts.append(x1 + (y - y1) / (y2 - y1) * (x2 - x1))
        cuts.sort()
        for a, b in zip(cuts[0::2], cuts[1::2]):
            if b - a > 2 * inset + 0.5:
                pieces.append(tuple((u * ca - y * sa, u * sa + y * ca) for u in (a + inset, b - inset)))
        y += gap
    return pieces


def regular(cx, cy, radius, sides, turn=0.0):
    return [(cx + radius * math.cos(turn + 2 * math.pi * k / sides),
             cy + radius * math.sin(turn + 2 * math.pi * k / sides)) for k in range(sides)]
