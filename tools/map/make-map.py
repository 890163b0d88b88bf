#!/usr/bin/env python3
"""Draws the basic wind speed map that the map viewer shows, as SVG.

The outline of the states and the Alaska and Hawaii insets come from the U.S. Census
boundaries of the npm package us-atlas (states-albers-10m.json, already in the Albers
projection of the lower 48 states with the two insets, 975 by 610). On them go the basic
wind speed contours of Figure 6-1 of ASCE 7-05 in mph with m/s, its special wind regions
and its notes. The contours and regions are drawn from points in longitude and latitude,
projected here as the package projected the boundaries. Where they lie is approximate, and
the map says that the standard's figure governs.

Made once, and again only when this script changes; the build does not run it:

    npm pack us-atlas@3.0.1 && tar xzf us-atlas-3.0.1.tgz
    python3 tools/map/make-map.py package/states-albers-10m.json src/ui/qt/map/WindSpeedMap.svg

Only the standard library is used.
"""

import json
import math
import sys
import textwrap

WIDTH, HEIGHT = 975, 745
TOLERANCE = 0.35  # px: arcs are simplified to this, and points kept to 0.1 px

# Contours as (mph, m/s, points west to east or south to north, where the label goes).
CONTOURS = [
    (85, 38, [(-117.1, 32.6), (-116.3, 34.5), (-118.6, 35.8), (-120.3, 38.2), (-121.3, 40.5),
              (-121.6, 42.5), (-121.3, 45.0), (-120.6, 47.5), (-120.0, 49.0)], 3),
    (90, 40, [(-100.4, 28.7), (-98.8, 30.5), (-96.6, 32.1), (-93.4, 33.1), (-90.0, 33.6),
              (-86.5, 33.8), (-83.8, 33.8), (-81.6, 35.0), (-79.8, 36.5), (-78.2, 38.4),
              (-76.9, 40.1), (-75.4, 41.6), (-73.6, 42.9), (-71.8, 44.3), (-70.2, 45.7),
              (-69.2, 47.4)], 4),
    (100, 45, [(-99.0, 26.9), (-97.8, 28.8), (-95.8, 30.7), (-92.6, 31.5), (-89.5, 31.8),
               (-86.5, 31.8), (-84.0, 31.7), (-82.4, 32.8), (-80.6, 34.4), (-78.8, 36.2),
               (-77.2, 38.0), (-75.8, 39.7), (-74.4, 41.0), (-72.6, 42.0), (-71.2, 43.0),
               (-70.0, 44.3), (-68.2, 45.3), (-67.0, 45.6)], 6),
    (110, 49, [(-98.3, 26.1), (-97.4, 28.1), (-95.3, 30.0), (-92.2, 30.8), (-89.9, 31.1),
               (-87.0, 31.1), (-84.6, 30.9), (-82.9, 31.5), (-81.6, 32.9), (-79.7, 34.9),
               (-77.8, 36.6), (-76.3, 38.3), (-75.1, 39.5), (-74.2, 40.4), (-72.6, 41.3),
               (-71.0, 42.0), (-70.4, 43.0), (-69.0, 44.0)], 5),
    (120, 54, [(-97.8, 25.9), (-97.2, 27.6), (-95.6, 29.3), (-93.0, 30.1), (-90.6, 30.5),
               (-88.2, 30.8), (-86.2, 30.8), (-84.4, 30.4), (-83.0, 29.6), (-82.0, 29.6),
               (-81.5, 30.9), (-80.6, 32.3), (-78.9, 33.8), (-77.2, 35.3), (-76.0, 36.6),
               (-74.6, 38.6)], 11),
    (130, 58, [(-97.5, 26.6), (-96.6, 28.1), (-94.8, 29.2), (-92.2, 29.7), (-90.2, 29.9),
               (-88.6, 30.4), (-86.6, 30.5), (-85.2, 29.9), (-83.7, 29.0), (-82.6, 28.2),
               (-81.6, 28.4), (-80.9, 29.4)], 2),
    (130, 58, [(-79.9, 32.6), (-78.3, 33.9), (-76.8, 34.7), (-75.7, 35.6)], 1),
    (140, 63, [(-82.7, 27.2), (-81.6, 27.3), (-80.6, 27.9)], 1),
    (140, 63, [(-77.0, 34.6), (-76.0, 35.0), (-75.5, 35.5)], 1),
    (150, 67, [(-81.8, 26.0), (-80.9, 26.1), (-80.1, 26.3)], 1),
]

# Special wind regions, shaded: mountain ranges and gorges where the standard asks for
# the local conditions to be examined.
SPECIAL_REGIONS = [
    [(-122.3, 49.0), (-120.6, 49.0), (-121.0, 46.5), (-121.6, 44.0), (-122.4, 41.8),
     (-123.0, 43.5), (-122.4, 46.0)],                                      # Cascades
    [(-121.8, 41.0), (-120.0, 40.2), (-118.2, 37.2), (-117.8, 35.6), (-118.6, 35.4),
     (-119.8, 37.2), (-121.2, 39.4)],                                      # Sierra Nevada
    [(-116.2, 49.0), (-111.5, 49.0), (-109.6, 45.3), (-106.2, 42.3), (-104.8, 40.0),
     (-104.6, 37.0), (-106.8, 35.4), (-108.2, 37.2), (-109.6, 40.2), (-111.6, 42.5),
     (-114.2, 45.4)],                                                      # Rocky Mountains
    [(-111.9, 41.9), (-111.3, 40.0), (-111.6, 38.2), (-112.4, 39.4), (-112.2, 41.4)],  # Wasatch
    [(-84.8, 34.2), (-82.6, 35.2), (-80.6, 37.0), (-79.0, 38.6), (-77.8, 40.4), (-75.6, 42.3),
     (-73.5, 43.6), (-72.4, 44.8), (-71.2, 44.6), (-72.8, 43.0), (-75.2, 41.4),
     (-77.4, 39.6), (-79.2, 37.8), (-81.2, 36.2), (-83.6, 34.8)],          # Appalachians
    [(-122.4, 45.7), (-120.9, 45.5), (-120.9, 45.8), (-122.4, 45.95)],    # Columbia Gorge
]

NOTES = [
    "Notes:",
    "1. Values are nominal design 3-second gust wind speeds in miles per hour (m/s) at 33 ft "
    "(10 m) above ground for Exposure C category.",
    "2. Linear interpolation between wind contours is permitted.",
    "3. Islands and coastal areas outside the last contour shall use the last wind speed "
    "contour of the coastal area.",
    "4. Mountainous terrain, gorges, ocean promontories, and special wind regions shall be "
    "examined for unusual wind conditions.",
]
PLACES = ["Hawaii 105 (47)", "Puerto Rico 145 (65)", "Guam 170 (76)",
          "Virgin Islands 145 (65)", "American Samoa 125 (56)"]
GOVERNS = "Approximate positions: the standard's Figure 6-1 governs."


def conic_equal_area(parallels, rotate, center, scale, translate):
    """A conic equal-area projection set as the package's projection sets it."""
    y0, y1 = (math.radians(p) for p in parallels)
    sy0 = math.sin(y0)
    n = (sy0 + math.sin(y1)) / 2
    c = 1 + sy0 * (2 * n - sy0)
    r0 = math.sqrt(c) / n

    def raw(lon, lat):
        r = math.sqrt(c - 2 * n * math.sin(lat)) / n
        return r * math.sin(lon * n), r0 - r * math.cos(lon * n)

    cx, cy = raw(math.radians(center[0]), math.radians(center[1]))

    def project(lon, lat):
        x, y = raw(math.radians(lon + rotate), math.radians(lat))
        return translate[0] + scale * (x - cx), translate[1] - scale * (y - cy)

    return project


LOWER48 = conic_equal_area((29.5, 45.5), 96, (-0.6, 38.7), 1300, (487.5, 305))


def simplify(points, tolerance):
    """Douglas-Peucker on a polyline, ends kept."""
    if len(points) < 3:
        return points
    (ax, ay), (bx, by) = points[0], points[-1]
    dx, dy = bx - ax, by - ay
    length = math.hypot(dx, dy)
    worst, index = -1.0, 0
    for i in range(1, len(points) - 1):
        px, py = points[i]
        d = abs(dy * px - dx * py + bx * ay - by * ax) / length if length else math.hypot(px - ax, py - ay)
        if d > worst:
            worst, index = d, i
    if worst <= tolerance:
        return [points[0], points[-1]]
    return simplify(points[:index + 1], tolerance)[:-1] + simplify(points[index:], tolerance)


def decode_arcs(topology):
    sx, sy = topology["transform"]["scale"]
    tx, ty = topology["transform"]["translate"]
    arcs = []
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for qx, qy in arc:
            x, y = x + qx, y + qy
            points.append((x * sx + tx, y * sy + ty))
        arcs.append(simplify(points, TOLERANCE))
    return arcs


def path_data(points, closed=False):
    text = "M" + " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
    return text + ("Z" if closed else "")


def ring_points(arcs, ring):
    points = []
    for index in ring:
        arc = arcs[index] if index >= 0 else list(reversed(arcs[~index]))
        points.extend(arc if not points else arc[1:])
    return points


def nation_path(topology, arcs):
    parts = []
    for geometry in topology["objects"]["nation"]["geometries"]:
        polygons = geometry["arcs"] if geometry["type"] == "MultiPolygon" else [geometry["arcs"]]
        for polygon in polygons:
            for ring in polygon:
                parts.append(path_data(ring_points(arcs, ring), closed=True))
    return "".join(parts)


def escape(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def contour_elements():
    out = []
    for mph, ms, points, label_at in CONTOURS:
        projected = [LOWER48(lon, lat) for lon, lat in points]
        out.append(f'<path class="c" d="{path_data(projected)}"/>')
        x, y = projected[label_at]
        out.append(f'<text class="l" x="{x:.1f}" y="{y - 3:.1f}">{mph} ({ms})</text>')
    return out


def region_elements():
    return [f'<path class="s" d="{path_data([LOWER48(*p) for p in region], closed=True)}"/>'
            for region in SPECIAL_REGIONS]


def legend_elements():
    out = ['<text class="t" x="487.5" y="24">Basic Wind Speed, ASCE 7-05 Figure 6-1</text>',
           f'<text class="g" x="487.5" y="44">{escape(GOVERNS)}</text>',
           '<rect class="s" x="20" y="616" width="16" height="10"/>',
           '<text class="n" x="42" y="625">Special wind region</text>',
           '<line class="c" x1="160" y1="621" x2="190" y2="621"/>',
           '<text class="n" x="196" y="625">Contour, mph (m/s); 90 (40) elsewhere in the '
           'lower 48 states</text>',
           '<text class="n" x="20" y="640">Alaska: 90 (40) inland to 130 (58) on the western '
           'and southern coasts. ' + escape(", ".join(PLACES)) + '.</text>']
    y = 656
    for note in NOTES:
        for number, line in enumerate(textwrap.wrap(note, 150)):
            out.append(f'<text class="n" x="{20 if number == 0 else 32}" y="{y}">'
                       f'{escape(line)}</text>')
            y += 11
    out.append(f'<text class="g" x="487.5" y="{HEIGHT - 10}">{escape(GOVERNS)}</text>')
    return out


def main():
    source, target = sys.argv[1], sys.argv[2]
    with open(source, encoding="utf-8") as f:
        topology = json.load(f)
    arcs = decode_arcs(topology)
    borders = "".join(path_data(arc) for arc in arcs)
    style = ("path.n{fill:#f4f1e6;stroke:none}"
             "path.b{fill:none;stroke:#777;stroke-width:0.5;stroke-linejoin:round}"
             "path.c,line.c{fill:none;stroke:#c0392b;stroke-width:1.4}"
             "path.s,rect.s{fill:#7f8c8d;fill-opacity:0.35;stroke:#555;stroke-width:0.4}"
             "text{font-family:sans-serif;fill:#222}"
             "text.l{font-size:9px;fill:#c0392b;font-weight:bold}"
             "text.t{font-size:16px;font-weight:bold;text-anchor:middle}"
             "text.g{font-size:11px;font-style:italic;text-anchor:middle}"
             "text.n{font-size:8.5px}")
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
             f'viewBox="0 0 {WIDTH} {HEIGHT}">',
             f"<style>{style}</style>",
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#dfeaf2"/>',
             f'<path class="n" d="{nation_path(topology, arcs)}"/>',
             *region_elements(),
             f'<path class="b" d="{borders}"/>',
             *contour_elements(),
             *legend_elements(),
             "</svg>"]
    with open(target, "w", encoding="utf-8") as f:
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
