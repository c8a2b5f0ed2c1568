"""A sheet to draw on that writes plain SVG: paths, discs, groups and gradients.

Only what a Tiny renderer knows is used: no text, clip, mask, filter or style sheet.
"""

from contextlib import contextmanager

from geometry import bounds, disc_inside, flatten, hatch, num, poly, pts
from palette import INK


class Drawing:
    """Coordinates run over `box` units; the picture is `width` by `height` pixels."""

    def __init__(self, width, height, box=None):
        self.width, self.height = width, height
        self.box = box or (0, 0, width, height)
        self.items = []
        self.defs = {}

    # -- plumbing
    def _attributes(self, fill, stroke, w, opacity, cap, join, dash=None):
        text = f' fill="{fill or "none"}"'
        if stroke:
            text += f' stroke="{stroke}" stroke-width="{num(w)}"'
            if cap:
                text += f' stroke-linecap="{cap}"'
            if join:
                text += f' stroke-linejoin="{join}"'
            if dash:
                text += f' stroke-dasharray="{dash}"'
        if opacity is not None and opacity < 1:
            text += f' opacity="{num(opacity)}"'
        return text

    def raw(self, text):
        self.items.append(text)

    def path(self, d, fill=None, stroke=None, w=3.0, opacity=None, cap="round", join="round", dash=None):
        self.items.append(f'<path d="{d}"{self._attributes(fill, stroke, w, opacity, cap, join, dash)}/>')

    def circle(self, x, y, r, fill=None, stroke=None, w=3.0, opacity=None):
        self.items.append(f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}"'
                          f'{self._attributes(fill, stroke, w, opacity, None, None)}/>')

    def ellipse(self, x, y, rx, ry, fill=None, stroke=None, w=3.0, opacity=None):
        self.items.append(f'<ellipse cx="{num(x)}" cy="{num(y)}" rx="{num(rx)}" ry="{num(ry)}"'
                          f'{self._attributes(fill, stroke, w, opacity, None, None)}/>')

    def rect(self, x, y, width, height, fill=None, stroke=None, w=3.0, r=0.0, opacity=None):
        self.items.append(f'<rect x="{num(x)}" y="{num(y)}" width="{num(width)}" height="{num(height)}"'
                          + (f' rx="{num(r)}" ry="{num(r)}"' if r else "")
                          + f'{self._attributes(fill, stroke, w, opacity, None, "round")}/>')

    def line(self, points, stroke=INK, w=3.0, opacity=None, cap="round"):
        self.path(poly(points, closed=False), None, stroke, w, opacity, cap)

    def poly(self, points, fill=None, stroke=None, w=3.0, opacity=None):
        self.path(poly(points), fill, stroke, w, opacity)

    @contextmanager
    def group(self, transform=None, opacity=None):
        text = "<g"
        if transform:
            text += f' transform="{transform}"'
        if opacity is not None:
            text += f' opacity="{num(opacity)}"'
        self.items.append(text + ">")
        yield self
        self.items.append("</g>")

    @contextmanager
    def at(self, x, y, scale=1.0, turn=0.0, flip=False):
        """A group with its origin at (x, y), scaled, turned in degrees, mirrored."""
        parts = [f"translate({num(x)},{num(y)})"]
        if turn:
            parts.append(f"rotate({num(turn)})")
        if scale != 1.0 or flip:
            sx = -scale if flip else scale
            parts.append(f"scale({sx:.4g},{scale:.4g})")
        with self.group(" ".join(parts)):
            yield self

    # -- paint
    def linear(self, name, stops, x1=0, y1=0, x2=0, y2=1):
        """A gradient over the painted shape's own box; returns the paint."""
        body = "".join(f'<stop offset="{num(o)}" stop-color="{c}"'
                       + (f' stop-opacity="{num(a[0])}"' if a else "") + "/>" for o, c, *a in stops)
        self.defs[name] = (f'<linearGradient id="{name}" x1="{num(x1)}" y1="{num(y1)}" '
                           f'x2="{num(x2)}" y2="{num(y2)}">{body}</linearGradient>')
        return f"url(#{name})"

    def radial(self, name, stops, cx=0.5, cy=0.5, r=0.5, fx=None, fy=None):
        body = "".join(f'<stop offset="{num(o)}" stop-color="{c}"'
                       + (f' stop-opacity="{num(a[0])}"' if a else "") + "/>" for o, c, *a in stops)
        focus = "" if fx is None else f' fx="{num(fx)}" fy="{num(fy)}"'
        self.defs[name] = (f'<radialGradient id="{name}" cx="{num(cx)}" cy="{num(cy)}" r="{num(r)}"{focus}>'
                           f"{body}</radialGradient>")
        return f"url(#{name})"

    # -- ornament inside a shape
    def hatch(self, shape, angle, gap, stroke, w=1.5, inset=1.0, phase=0.0, opacity=None):
        d = " ".join(f"M {pts(a)} L {pts(b)}" for a, b in hatch(shape, angle, gap, inset, phase))
        if d:
            self.path(d, None, stroke, w, opacity, cap="butt")

    def scatter(self, shape, dx, dy, radius, motif, ox=0.0, oy=0.0, stagger=True):
        """Repeats `motif(x, y)` on a grid, only where a disc of `radius` lies in the shape."""
        polygons = flatten(shape)
        x0, y0, x1, y1 = bounds(polygons)
        row = 0
        y = y0 + oy
        while y < y1:
            x = x0 + ox + (dx / 2 if stagger and row % 2 else 0)
            while x < x1:
                if disc_inside(polygons, x, y, radius):
                    motif(x, y)
                x += dx
            y += dy
            row += 1

    def text(self):
        bx, by, bw, bh = self.box
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                f'width="{num(self.width)}" height="{num(self.height)}" '
                f'viewBox="{num(bx)} {num(by)} {num(bw)} {num(bh)}">')
        defs = "<defs>" + "".join(self.defs.values()) + "</defs>" if self.defs else ""
        return "\n".join([head] + ([defs] if defs else []) + self.items + ["</svg>"]) + "\n"

    def save(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(self.text(), encoding="utf-8", newline="\n")
