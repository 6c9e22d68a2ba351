"""What the pictures of the hardware are made of: planes, outlines, shading, buttons, hats, labels.

Coordinates are those of the picture: x to the right, y down, in pixels at its natural size.
"""

from contextlib import contextmanager
from math import cos, hypot, pi, sin

BODY = ("#6a727d", "#454b54", "#2a2e34")
CAP = ("#d3d8de", "#99a2ae", "#5c6571")
DARK = ("#4d545d", "#30353b", "#1b1e22")
RED = ("#f3887c", "#d0392f", "#86201a")
BLUE = ("#8fc0ea", "#3b82c4", "#235a91")
LEADER = "#8791a0"


def number(value):
    return f"{value:.1f}".rstrip("0").rstrip(".").replace("-0", "-0") or "0"


def path(points, close=True):
    return "M" + "L".join(f"{number(x)} {number(y)}" for x, y in points) + ("z" if close else "")


def smooth(points, close=True):
    """A curve through all points."""
    count = len(points)

    def at(i):
        return points[i % count] if close else points[max(0, min(count - 1, i))]

    text = f"M{number(points[0][0])} {number(points[0][1])}"
    for i in range(count if close else count - 1):
        before, start, end, after = at(i - 1), at(i), at(i + 1), at(i + 2)
        handles = [(start[k] + (end[k] - before[k]) / 6, end[k] - (after[k] - start[k]) / 6) for k in (0, 1)]
        text += "C" + " ".join(number(v) for v in (handles[0][0], handles[1][0], handles[0][1], handles[1][1], *end))
    return text + ("z" if close else "")


def curve(points, steps=8):
    """Points along the closed curve through all points."""
    found = []
    for i in range(len(points)):
        a, b, c, e = (points[(i + k) % len(points)] for k in (-1, 0, 1, 2))
        for t in (j / steps for j in range(steps)):
            found.append(tuple(0.5 * (2 * b[k] + (c[k] - a[k]) * t + (2 * a[k] - 5 * b[k] + 4 * c[k] - e[k]) * t * t
                                      + (3 * b[k] - a[k] - 3 * c[k] + e[k]) * t ** 3) for k in (0, 1)))
    return found


def along(outline, start, end):
    """The part of the curve through an outline that lies between two points near it, the shorter way."""
    points = curve(outline, 16)
    first, last = (min(range(len(points)), key=lambda i: hypot(points[i][0] - p[0], points[i][1] - p[1]))
                   for p in (start, end))
    there = points[first:last + 1] if first <= last else points[first:] + points[:last + 1]
    back = points[last:first + 1] if last <= first else points[last:] + points[:first + 1]
    return there if len(there) <= len(back) else back[::-1]


def rounded(points, radius):
    """A polygon with round corners."""
    text = ""
    for i, corner in enumerate(points):
        ends = []
        for other in (points[i - 1], points[(i + 1) % len(points)]):
            length = hypot(other[0] - corner[0], other[1] - corner[1])
            part = min(radius / length, 0.5)
            ends.append((corner[0] + (other[0] - corner[0]) * part, corner[1] + (other[1] - corner[1]) * part))
        text += f"{'L' if text else 'M'}{number(ends[0][0])} {number(ends[0][1])}"
        text += "Q" + " ".join(number(v) for v in (*corner, *ends[1]))
    return text + "z"


def soft(points, radius):
    """The same as points, for shapes that are raised."""
    found = []
    for i, corner in enumerate(points):
        start, end = (tuple(corner[k] + (other[k] - corner[k]) * min(radius / hypot(other[0] - corner[0], other[1] - corner[1]), 0.5)
                            for k in (0, 1)) for other in (points[i - 1], points[(i + 1) % len(points)]))
        found += [tuple((1 - t) ** 2 * start[k] + 2 * t * (1 - t) * corner[k] + t * t * end[k] for k in (0, 1))
                  for t in (j / 4 for j in range(5))]
    return found


def hull(points):
    """The convex outline of points."""
    def half(ordered):
        chain = []
        for p in ordered:
            while len(chain) > 1 and (chain[-1][0] - chain[-2][0]) * (p[1] - chain[-2][1]) <= (
                    chain[-1][1] - chain[-2][1]) * (p[0] - chain[-2][0]):
                chain.pop()
            chain.append(p)
        return chain[:-1]

    ordered = sorted(set(points))
    return half(ordered) + half(ordered[::-1])


class Plane:
    """A surface of the thing drawn: where its two directions and its outward direction go on paper."""

    def __init__(self, origin, right, down, out):
        self.origin, self.right, self.down, self.out = origin, right, down, out

    def at(self, a, b, height=0):
        return tuple(self.origin[k] + a * self.right[k] + b * self.down[k] + height * self.out[k] for k in (0, 1))

    def ring(self, a, b, radius, height=0, lobes=0.0, wide=1.0):
        """A circle; with lobes, one that bulges in the four directions."""
        return [self.at(a + cos(t) * wide * radius * (1 + lobes * cos(4 * t)), b + sin(t) * radius * (1 + lobes * cos(4 * t)),
                        height) for t in (2 * pi * i / 48 for i in range(48))]

    def box(self, a, b, width, length, height=0):
        """The corners of a rectangle about (a, b)."""
        return [self.at(a + x * width / 2, b + y * length / 2, height) for x, y in ((-1, -1), (1, -1), (1, 1), (-1, 1))]


class Drawing:
    """A picture in the making; written in the order in which things are added, back to front."""

    def __init__(self, width, height, title):
        self.width, self.height, self.title = width, height, title
        self.parts, self.gradients, self.depth = [], [], 1

    def add(self, text):
        self.parts.append("  " * self.depth + text)

    def control(self, name):
        """All that is added within is the control's element: its hot spot."""
        return self.group(name)

    def beside(self, name):
        """What is drawn for the sake of a control, is no part of its hot spot, and is hidden with it."""
        return self.group(f"beside:{name}")

    @contextmanager
    def group(self, name):
        self.add(f'<g id="{name}">')
        self.depth += 1
        yield
        self.depth -= 1
        self.add("</g>")

    def gradient(self, start, end, *colours):
        """A linear gradient; a colour is one or (colour, opacity), evenly spaced."""
        return self.shades(start, end, [(i / (len(colours) - 1), colour) for i, colour in enumerate(colours)])

    def shades(self, start, end, stops_and_colours):
        """A linear gradient of (offset, colour)."""
        stops = ""
        for offset, colour in stops_and_colours:
            opacity = ""
            if isinstance(colour, tuple):
                colour, opacity = colour[0], f' stop-opacity="{colour[1]}"'
            stops += f'<stop offset="{offset:.2f}" stop-color="{colour}"{opacity}/>'
        places = " ".join(f'{n}="{number(v)}"' for n, v in zip(("x1", "y1", "x2", "y2"), (*start, *end)))
        return self._keep(f'<linearGradient id="%s" gradientUnits="userSpaceOnUse" {places}>{stops}</linearGradient>')

    def glow(self, centre, radius, colour, opacity):
        """A spot that fades out."""
        x, y = (number(v) for v in centre)
        return self._keep(
            f'<radialGradient id="%s" gradientUnits="userSpaceOnUse" cx="{x}" cy="{y}" r="{number(radius)}">'
            f'<stop offset="0" stop-color="{colour}" stop-opacity="{opacity}"/>'
            f'<stop offset="1" stop-color="{colour}" stop-opacity="0"/></radialGradient>')

    def _keep(self, gradient):
        if gradient not in self.gradients:
            self.gradients.append(gradient)
        return f"url(#g{self.gradients.index(gradient) + 1})"

    def fill(self, outline, paint, opacity=None):
        self.add(f'<path d="{outline}" fill="{paint}"' + (f' fill-opacity="{opacity}"' if opacity else "") + "/>")

    def line(self, outline, colour, width, opacity=None):
        faint = f' stroke-opacity="{opacity}"' if opacity else ""
        self.add(f'<path d="{outline}" fill="none" stroke="{colour}" stroke-width="{number(width)}"{faint} '
                 'stroke-linecap="round" stroke-linejoin="round"/>')

    def rim(self, outline):
        """The contour of a body: dark on a light ground, light on a dark one."""
        self.line(outline, "currentColor", 1.4, 0.5)

    def shadow(self, centre, width, height):
        """What the thing casts on the ground it stands on."""
        x, y = centre
        stops = "".join(f'<stop offset="{o}" stop-color="#000" stop-opacity="{a}"/>'
                        for o, a in ((0, 0.42), (0.6, 0.22), (1, 0)))
        paint = self._keep(f'<radialGradient id="%s" cx="0.5" cy="0.5" r="0.5">{stops}</radialGradient>')
        self.add(f'<ellipse cx="{number(x)}" cy="{number(y)}" rx="{number(width)}" ry="{number(height)}" fill="{paint}"/>')

    def label(self, name, text, at, anchor="start", leader=()):
        """The control's name, at the end of a thin line that starts on the control when it doesn't stand beside it."""
        with self.group(f"label:{name}"):
            if leader:
                self.line(path(leader, close=False), LEADER, 1.2)
                x, y = leader[0]
                self.add(f'<circle cx="{number(x)}" cy="{number(y)}" r="2.2" fill="{LEADER}"/>')
            self._name(name, text, at, anchor, 15, "currentColor")

    def legend(self, name, text, at, size):
        """The control's name printed on the control."""
        with self.group(f"label:{name}"):
            self._name(name, text, (at[0], at[1] + size * 0.36), "middle", size, "#1b1e22")

    def _name(self, name, text, at, anchor, size, colour):
        self.add(f'<text id="name:{name}" x="{number(at[0])}" y="{number(at[1])}" text-anchor="{anchor}" '
                 f'font-family="sans-serif" font-size="{size}" font-weight="bold" fill="{colour}">{text}</text>')

    def text(self):
        gradients = "\n".join("    " + g % f"g{i + 1}" for i, g in enumerate(self.gradients))
        return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {self.width} {self.height}" '
                f'width="{self.width}" height="{self.height}">\n'
                f"  <!-- Written by scripts/draw-hardware. -->\n  <title>{self.title}</title>\n"
                f"  <defs>\n{gradients}\n  </defs>\n" + "\n".join(self.parts) + "\n</svg>\n")


def middle(points):
    return tuple(sum(p[k] for p in points) / len(points) for k in (0, 1))


def across(points):
    """From the upper left to the lower right of an outline: where the light goes."""
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    return (min(xs), min(ys)), (max(xs), max(ys))


def raised(d, bottom, top, colours, knurls=0):
    """A solid: its foot, its top and the wall between, which may have grooves."""
    wall = hull(bottom + top)
    d.fill(path(wall), d.gradient(*across(wall), colours[1], colours[2]))
    for i in range(0, len(bottom) if knurls else 0, knurls or 1):
        (x, y), (u, v) = bottom[i], top[i]
        d.line(path([(x * 0.92 + u * 0.08, y * 0.92 + v * 0.08), (u, v)], close=False), "#22262b", 1.2, 0.7)
    d.fill(path(top), d.gradient(*across(top), colours[0], colours[1]))
    d.line(path(top), colours[0], 0.8, 0.8)
    d.line(path(wall), "#0e1012", 1, 0.65)


def well(d, outline):
    """The recess in which a control sits."""
    start, end = across(outline)
    d.fill(path(outline), d.gradient(start, end, "#121417", "#3a4048"))
    d.line(path(outline), "#0b0c0e", 1, 0.7)


def button(d, plane, a, b, radius, colours=CAP, height=6):
    well(d, plane.ring(a, b, radius + 3))
    top = plane.ring(a, b, radius, height)
    raised(d, plane.ring(a, b, radius), top, colours)
    spot = plane.at(a - radius * 0.3, b - radius * 0.35, height)
    d.fill(path(plane.ring(a, b, radius * 0.8, height)), d.glow(spot, radius, "#fff", 0.45))


def hat(d, plane, a, b, radius, height=9):
    """A four-way hat: a dish, a neck, and a cap with four lobes and arrow heads."""
    dish = plane.ring(a, b, radius + 4)
    well(d, dish)
    raised(d, plane.ring(a, b, radius * 0.5), plane.ring(a, b, radius * 0.5, height * 0.6), DARK)
    low = plane.ring(a, b, radius * 0.95, height * 0.55, 0.10)
    cap = plane.ring(a, b, radius * 0.95, height, 0.10)
    raised(d, low, cap, CAP)
    for x, y in ((0, -1), (1, 0), (0, 1), (-1, 0)):
        tip = plane.at(a + x * radius * 0.86, b + y * radius * 0.86, height)
        foot = [plane.at(a + x * radius * 0.56 + y * s * radius * 0.2, b + y * radius * 0.56 + x * s * radius * 0.2, height)
                for s in (-1, 1)]
        d.fill(path([tip, *foot]), "#31363d")
    dimple = plane.ring(a, b, radius * 0.36, height)
    d.fill(path(dimple), d.gradient(*across(dimple), "#59616c", "#c9cfd6"))


def screws(d, plane, width, length, height):
    """At the four corners of a top."""
    for a, b in ((-1, -1), (1, -1), (1, 1), (-1, 1)):
        head = plane.ring(a * width / 2, b * length / 2, 5, height)
        d.fill(path(head), d.gradient(*across(head), "#23272c", "#7b8490"))
        d.line(path([plane.at(a * width / 2 - 2.5, b * length / 2 - 2.5, height),
                     plane.at(a * width / 2 + 2.5, b * length / 2 + 2.5, height)], close=False), "#14161a", 1.1)


def ribbon(d, plane, a, b, length, along, both=True, width=40):
    """A band on the ground with an arrow: the axis that moves this way. along: 0 to the right, 1 down."""
    size = (length, width) if along == 0 else (width, length)
    band = plane.box(a, b, *size)
    d.fill(rounded(band, 9), d.gradient(*across(band), BLUE[1], BLUE[2]))
    d.line(rounded(band, 9), BLUE[0], 1, 0.8)

    def spot(s, t):
        return plane.at(a + s, b + t) if along == 0 else plane.at(a + t, b + s)

    end, head = length / 2 - 10, width * 0.5
    back = -end + head if both else -end
    shape = [spot(back, -3), spot(end - head, -3), spot(end - head, -width * 0.33), spot(end, 0),
             spot(end - head, width * 0.33), spot(end - head, 3), spot(back, 3)]
    if both:
        shape += [spot(back, width * 0.33), spot(-end, 0), spot(back, -width * 0.33)]
    d.fill(path(shape), "#fff")
