"""The plot of the measurements: bars for the start-up cycle, lines for what grows."""

from matplotlib import rc_context
from matplotlib.figure import Figure
from matplotlib.ticker import EngFormatter

from measurements import PEERS

HUES = "#8a8a8a #1d3557 #457b9d #2a9d8f #6a994e #b8860b #e07a1f #7b2cbf #8d5a3b #c1121f"
COLOURS = dict(zip(["floor", *PEERS, "zarn"], HUES.split()))
LINES = [
    ("Text arguments: time per argument", "arguments", "texts"),
    ("Exact names: time per argument", "options", "names-exact"),
    ("Declaration: time per option", "options", "declare"),
]
# The same data make the same file. Texts stay texts; the white ground is readable on any page.
STYLE = {"svg.hashsalt": "zarn", "svg.fonttype": "none", "font.sans-serif": ["DejaVu Sans"]}
STYLE |= {"font.size": 9, "xtick.bottom": False, "ytick.left": False}


def times(data, workload, peer):
    """What was timed at every size: (size, seconds) pairs."""
    found = []
    for run, units in data.items():
        name, size, of = run.split("/")
        if (name, of) == (workload, peer) and "ns" in units:
            found.append((int(size), units["ns"] * 1e-9))
    return sorted(found)


def draw_cycle(axes, data):
    cycles = {peer: found[0][1] for peer in COLOURS if (found := times(data, "start-up", peer))}
    order = sorted(cycles, key=cycles.get, reverse=True)
    bars = axes.barh(order, [cycles[p] for p in order], color=[COLOURS[p] for p in order])
    texts = [EngFormatter("s", places=1)(cycles[peer]) for peer in order]
    axes.bar_label(bars, texts, padding=3)
    axes.margins(x=0.2)
    axes.set_title("Start-up cycle: 50 options, 20 arguments")
    axes.xaxis.set_major_formatter(EngFormatter("s"))


def draw_growth(axes, data, title, things, workload):
    for peer in COLOURS:
        if points := times(data, workload, peer):
            line = axes.loglog(*zip(*points), ".-", color=COLOURS[peer], label=peer)[0]
            line.set_linewidth(2.6 if peer == "zarn" else 1.3)
            line.set_linestyle("--" if peer == "floor" else "-")
    axes.set_title(title)
    axes.set_xlabel(things)
    axes.xaxis.set_major_formatter(EngFormatter())
    axes.yaxis.set_major_formatter(EngFormatter("s"))
    axes.minorticks_off()
    axes.grid(color="#e4e4e4")


def write_plot(path, data):
    with rc_context(STYLE):
        figure = Figure(figsize=(10.5, 8))
        figure.set_layout_engine("constrained", rect=(0, 0.05, 1, 0.95))  # above the legend
        cycle, *others = figure.subplots(2, 2).flat
        draw_cycle(cycle, data)
        for axes, line in zip(others, LINES):
            draw_growth(axes, data, *line)
        lines, names = others[0].get_legend_handles_labels()
        figure.legend(lines, names, loc="lower center", ncols=len(names))
        figure.savefig(path, format="svg", metadata={"Date": None, "Creator": None})
