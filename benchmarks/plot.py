"""The plot of the measurements as SVG: bars for the start-up cycle, lines for what grows."""

import math
from html import escape

from measurements import PEERS

WIDTH, HEIGHT = 1080, 800
PANEL_WIDTH, PANEL_HEIGHT = 380, 280
LABEL_GAP = 14
COLOURS = {
    "zarn": "#c1121f",
    "floor": "#8a8a8a",
    "getopt_long": "#1d3557",
    "argp": "#457b9d",
    "popt": "#2a9d8f",
    "args": "#6a994e",
    "cxxopts": "#b8860b",
    "CLI11": "#e07a1f",
    "TCLAP": "#7b2cbf",
    "Boost": "#8d5a3b",
}
ALL = ["zarn", "floor", *PEERS]


def text(x, y, content, anchor="start", style=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" {style}>{escape(content)}</text>'


def line(x1, y1, x2, y2, style):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" {style}/>'


def stroke(peer):
    width = 3 if peer == "zarn" else 1.6
    dashes = ' stroke-dasharray="5 4"' if peer == "floor" else ""
    return f'stroke="{COLOURS[peer]}" stroke-width="{width}"{dashes} fill="none"'


def label_style(peer):
    return f'fill="{COLOURS[peer]}"' + (' font-weight="bold"' if peer == "zarn" else "")


def short(value):
    for unit, suffix in ((1e6, "M"), (1e3, "k")):
        if value >= unit:
            return f"{value / unit:g}{suffix}"
    return f"{value:g}"


def duration(nanoseconds):
    for unit, suffix in ((1e9, "s"), (1e6, "ms"), (1e3, "µs")):
        if nanoseconds >= unit:
            return f"{nanoseconds / unit:.3g} {suffix}"
    return f"{nanoseconds:.3g} ns"


class LogScale:
    """Maps powers of ten onto pixels; whole decades unless `exact`."""

    def __init__(self, values, start, end, exact=False):
        low, high = math.log10(min(values)), math.log10(max(values))
        self.low, self.high = (low, high) if exact else (math.floor(low), math.ceil(high))
        if self.high == self.low:
            self.high += 1
        self.start, self.end = start, end

    def at(self, value):
        part = (math.log10(value) - self.low) / (self.high - self.low)
        return self.start + part * (self.end - self.start)

    def decades(self):
        return [10.0**e for e in range(math.ceil(self.low), math.floor(self.high) + 1)]


def spread(labels):
    """Moves labels apart that would overlap: (y, peer) pairs, from the top down."""
    placed = []
    for y, peer in sorted(labels):
        placed.append([max(y, placed[-1][0] + LABEL_GAP) if placed else y, peer])
    return placed


def line_panel(left, top, title, axis, workload, data):
    series = {}
    for peer in ALL:
        points = data.timings(workload, peer)
        if points:
            series[peer] = points
    parts = [text(left, top - 14, title, style='class="title"')]
    if not series:
        return parts
    bottom, right = top + PANEL_HEIGHT, left + PANEL_WIDTH
    everything = [point for points in series.values() for point in points]
    horizontal = LogScale([x for x, _ in everything], left, right, exact=True)
    vertical = LogScale([y for _, y in everything], bottom, top)
    for value in vertical.decades():
        y = vertical.at(value)
        parts.append(line(left, y, right, y, 'class="grid"'))
        parts.append(text(left - 6, y + 4, duration(value), "end"))
    for value in horizontal.decades():
        x = horizontal.at(value)
        parts.append(line(x, top, x, bottom, 'class="grid"'))
        parts.append(text(x, bottom + 16, short(value), "middle"))
    parts.append(text((left + right) / 2, bottom + 34, axis, "middle"))
    ends = []
    for peer in reversed(list(series)):
        points = [(horizontal.at(x), vertical.at(y)) for x, y in series[peer]]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        parts.append(f'<polyline points="{path}" {stroke(peer)}/>')
        parts.extend(
            f'<circle cx="{x:.1f}" cy="{y:.1f}" r="2.5" fill="{COLOURS[peer]}"/>' for x, y in points
        )
        ends.append((points[-1], peer))
    # A line that stops early is labelled where it stops, the others side by side at the edge.
    for (x, y), peer in ends:
        if x < right - 1:
            parts.append(text(x + 6, y - 5, peer, style=label_style(peer)))
    for y, peer in spread([(y, peer) for (x, y), peer in ends if x >= right - 1]):
        parts.append(text(right + 8, y + 4, peer, style=label_style(peer)))
    return parts


def bar_panel(left, top, title, workload, size, data):
    values = {peer: data.get(workload, size, peer) for peer in ALL}
    values = {peer: value for peer, value in values.items() if value is not None}
    parts = [text(left, top - 14, title, style='class="title"')]
    if not values:
        return parts
    first = left + 40
    scale = PANEL_WIDTH / max(values.values())
    step = PANEL_HEIGHT / len(values)
    for index, (peer, value) in enumerate(sorted(values.items(), key=lambda item: item[1])):
        y = top + index * step
        width = max(value * scale, 1)
        parts.append(text(first - 6, y + step / 2 + 4, peer, "end", label_style(peer)))
        parts.append(
            f'<rect x="{first}" y="{y + 4:.1f}" width="{width:.1f}" height="{step - 8:.1f}" '
            f'fill="{COLOURS[peer]}"/>'
        )
        parts.append(text(first + width + 6, y + step / 2 + 4, duration(value)))
    return parts


STYLE = (
    "text{font:12px sans-serif;fill:#333}.title{font-size:15px;font-weight:bold}"
    ".grid{stroke:#e4e4e4;stroke-width:1}"
)


def write_plot(path, data):
    # Colours of single labels are attributes, which a style sheet would override.
    style = STYLE.replace("fill:#333", "")
    left, right, top, bottom = 75, 600, 60, 460
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" fill="#333">',
        f"<style>{style}</style>",
        f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#fff"/>',
        *bar_panel(left, top, "Start-up cycle: 50 options, 20 arguments", "start-up", 20, data),
        *line_panel(right, top, "Text arguments: time per argument", "arguments", "texts", data),
        *line_panel(
            left, bottom, "Exact names: time per argument", "options", "names-exact", data
        ),
        *line_panel(right, bottom, "Declaration: time per option", "options", "declare", data),
        "</svg>",
    ]
    with open(path, "w", encoding="utf-8") as stream:
        stream.write("\n".join(parts) + "\n")
