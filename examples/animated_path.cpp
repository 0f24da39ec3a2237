// SPDX-License-Identifier: MIT
// Runs the path animator over one path of each kind and writes what it gives as an animated SVG: the way in grey, an
// arrow for every fourth frame, a ring on the first frame behind each joint, and a red arrow that moves in a browser.
//
//     example_animated_path FILE
#include <vagrel/motion/TPathAnimator.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

using namespace vagrel;

namespace {

constexpr double Duration = 4; // seconds
constexpr int FrameCount = 64;
constexpr int PanelWidth = 240, PanelHeight = 190, PanelsInRow = 3;

struct TPanel {
    const char* title;
    TPathType type;
    TPathEasing easing;
    std::vector<TPathSegment> segments;
};

struct TFrame {
    double x = 0, y = 0, degrees = 0;
    bool joint = false;
};

TPathSegment Line(TPoint2D a, TPoint2D b, double speed) {
    return {.StartPoint = a, .EndPoint = b, .SpeedFactor = speed};
}

TPathSegment Round(TPoint2D centre, double radiusX, double radiusY, double start, double end) {
    return {.StartPoint = centre, .Radius = radiusX, .RadiusY = radiusY, .StartAngle = start, .EndAngle = end};
}

TPathSegment Bezier(TPoint2D a, TPoint2D b, TPoint2D c, TPoint2D d) {
    return {.StartPoint = a, .EndPoint = d, .ControlPoint1 = b, .ControlPoint2 = c};
}

std::vector<TPanel> Panels() {
    return {
        {"line, ease out", ptLine, peEaseOut, {Line({20, 150}, {220, 60}, 1)}},
        {"polyline, second leg at triple speed",
         ptPolyline,
         peLinear,
         {Line({20, 150}, {80, 50}, 1), Line({80, 50}, {160, 150}, 3), Line({160, 150}, {220, 50}, 1)}},
        {"circle, smooth step", ptCircle, peSmoothStep, {Round({120, 105}, 65, 0, 0, 0)}},
        {"ellipse, linear", ptEllipse, peLinear, {Round({120, 105}, 100, 40, 0, 0)}},
        {"two arcs, ease in and out",
         ptArc,
         peEaseInOut,
         {Round({70, 105}, 50, 0, 180, 360), Round({170, 105}, 50, 0, 180, 0)}},
        {"Bezier with a corner, linear",
         ptBezier,
         peLinear,
         {Bezier({20, 150}, {30, 10}, {100, 10}, {120, 120}), Bezier({120, 120}, {180, 180}, {230, 150}, {210, 50})}},
    };
}

// One run in even steps of time, as a host's timer would make it.
std::vector<TFrame> Run(TPathAnimator& animator) {
    std::vector<TFrame> frames;
    animator.Reset();
    double delta = 0;
    for (bool running = true; running; delta = Duration / FrameCount) {
        TFrame frame;
        double rotation = 0;
        const double before = animator.GetProgress();
        running = animator.Update(delta, frame.x, frame.y, rotation);
        frame.joint = !animator.GetCrossedWaypoints(before, animator.GetProgress()).empty();
        frame.degrees = rotation * 180 / std::numbers::pi;
        // A browser turns through all values between two frames, so that none may jump by a whole turn.
        if (!frames.empty())
            frame.degrees -= 360 * std::round((frame.degrees - frames.back().degrees) / 360);
        frames.push_back(frame);
    }
    return frames;
}

void WriteWay(std::ostream& out, TPathAnimator& animator) {
    out << "<polyline class=\"way\" points=\"";
    for (int i = 0; i <= 200; ++i) {
        double x = 0, y = 0, rotation = 0;
        animator.Seek(i / 200.0, x, y, rotation);
        out << x << ',' << y << ' ';
    }
    out << "\"/>\n";
}

void WriteMover(std::ostream& out, const std::vector<TFrame>& frames) {
    const auto animate = [&](const char* element, const char* type, auto write) {
        // The attribute holds the first place for programs that draw no animation.
        out << '<' << element << " transform=\"" << type << '(';
        write(frames.front());
        out << ")\">\n<animateTransform attributeName=\"transform\" type=\"" << type << "\" dur=\"" << Duration
            << "s\" repeatCount=\"indefinite\" values=\"";
        for (const TFrame& frame : frames)
            write(frame), out << ';';
        out << "\"/>\n";
    };
    animate("g", "translate", [&](const TFrame& frame) { out << frame.x << ',' << frame.y; });
    animate("use href=\"#arrow\" class=\"mover\"", "rotate", [&](const TFrame& frame) { out << frame.degrees; });
    out << "</use>\n</g>\n";
}

void WritePanel(std::ostream& out, const TPanel& panel, int index) {
    TPathAnimator animator;
    animator.SetPath(panel.type, panel.segments);
    animator.SetEasing(panel.easing);
    animator.SetTiming(Duration, 1);

    out << "<g transform=\"translate(" << index % PanelsInRow * PanelWidth << ' ' << index / PanelsInRow * PanelHeight
        << ")\">\n<text x=\"120\" y=\"18\">" << panel.title << "</text>\n";
    WriteWay(out, animator);
    const std::vector<TFrame> frames = Run(animator);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const TFrame& frame = frames[i];
        if (i % 4 == 0)
            out << "<use href=\"#arrow\" class=\"frame\" transform=\"translate(" << frame.x << ' ' << frame.y
                << ") rotate(" << frame.degrees << ")\"/>\n";
        if (frame.joint)
            out << "<circle class=\"joint\" cx=\"" << frame.x << "\" cy=\"" << frame.y << "\" r=\"10\"/>\n";
    }
    WriteMover(out, frames);
    out << "</g>\n";
}

void Write(std::ostream& out) {
    const std::vector<TPanel> panels = Panels();
    const int rows = (static_cast<int>(panels.size()) + PanelsInRow - 1) / PanelsInRow;
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << PanelsInRow * PanelWidth << ' '
        << rows * PanelHeight << R"svg(">
<style>
text { font: 11px sans-serif; text-anchor: middle }
.way { fill: none; stroke: #bbb }
.frame { fill: #36c; fill-opacity: 0.6 }
.joint { fill: none; stroke: #090 }
.mover { fill: #d00 }
</style>
<defs><path id="arrow" d="M9 0L-5 5L-2 0L-5 -5Z"/></defs>
<rect width="100%" height="100%" fill="#fff"/>
)svg";
    for (std::size_t i = 0; i < panels.size(); ++i)
        WritePanel(out, panels[i], static_cast<int>(i));
    out << "</svg>\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: example_animated_path FILE\n";
        return EXIT_FAILURE;
    }
    std::ofstream file(argv[1]);
    Write(file);
    file.close();
    if (!file) {
        std::cerr << "cannot write " << argv[1] << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
