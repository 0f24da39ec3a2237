// SPDX-License-Identifier: MIT
// The kinds of paths, the easings, and the clock that runs along them.
#include <vagrel/motion/TPathAnimator.h>

#include <vagrel/foundation/Exceptions.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

namespace vagrel {

namespace {

using std::numbers::pi;

// Enumerations hold any integer; a value that does not exist acts as the first one.
template <class Row, std::size_t Count>
const Row& RowOf(const Row (&rows)[Count], std::int32_t value) {
    const auto index = static_cast<std::size_t>(value);
    return rows[index < Count ? index : 0];
}

// Throws where the condition fails, which it also does for a value that is not a number.
void Require(bool condition, const char16_t* message) {
    if (!condition)
        throw EArgumentOutOfRangeException(message);
}

void RequireScale(double scale) { Require(scale > 0, u"TimeScale must be greater than zero"); }

void RequireProgress(double progress) {
    Require(progress >= 0 && progress <= 1, u"Progress must be between zero and one");
}

double Radians(double degrees) { return degrees * (pi / 180); }

TPoint2D RoundPosition(TPoint2D centre, double radiusX, double radiusY, double angle) {
    return {centre.X + radiusX * std::cos(angle), centre.Y + radiusY * std::sin(angle)};
}

double RoundRotation(const TPathSegment& segment, double radiusX, double radiusY, double angle) {
    const double difference = segment.EndAngle - segment.StartAngle;
    const double sense = difference == 0 ? 1 : difference;
    return std::atan2(radiusY * std::cos(angle) * sense, -radiusX * std::sin(angle) * sense);
}

// From one heading to the other the short way round.
double BlendRotation(double from, double to, double part) {
    while (std::abs(to - from) > pi)
        (to < from ? to : from) += 2 * pi;
    return from + (to - from) * part;
}

} // namespace

struct TPathAnimator::TKind {
    double (*Length)(const TPathSegment& segment); // none for a curve that is measured in chords
    TPoint2D (*Position)(const TPathAnimator& path, const TPathSegment& segment, double t);
    double (*Rotation)(const TPathAnimator& path, const TPathSegment& segment, double t);
};

const TPathAnimator::TKind& TPathAnimator::Kind() const {
    using Path = const TPathAnimator&;
    using Segment = const TPathSegment&;
    static constexpr TKind line{
        [](Segment s) { return PointDistance(s.StartPoint, s.EndPoint); },
        [](Path, Segment s, double t) {
            return TPoint2D{s.StartPoint.X + (s.EndPoint.X - s.StartPoint.X) * t,
                            s.StartPoint.Y + (s.EndPoint.Y - s.StartPoint.Y) * t};
        },
        [](Path, Segment s, double) {
            return std::atan2(s.EndPoint.Y - s.StartPoint.Y, s.EndPoint.X - s.StartPoint.X);
        },
    };
    static constexpr TKind circle{
        [](Segment s) { return std::abs(s.Radius) * (2 * pi); },
        [](Path, Segment s, double t) { return RoundPosition(s.StartPoint, s.Radius, s.Radius, t * (2 * pi)); },
        [](Path, Segment, double t) { return t * (2 * pi) + pi / 2; },
    };
    static constexpr TKind ellipse{
        nullptr,
        [](Path path, Segment s, double t) {
            return RoundPosition(s.StartPoint, s.Radius, s.RadiusY, path.GetSegmentAngle(s, t));
        },
        [](Path path, Segment s, double t) {
            return RoundRotation(s, s.Radius, s.RadiusY, path.GetSegmentAngle(s, t));
        },
    };
    static constexpr TKind arc{
        [](Segment s) { return std::abs(Radians(s.EndAngle - s.StartAngle) * s.Radius); },
        [](Path path, Segment s, double t) {
            return RoundPosition(s.StartPoint, s.Radius, s.Radius, path.GetSegmentAngle(s, t));
        },
        [](Path path, Segment s, double t) { return RoundRotation(s, s.Radius, s.Radius, path.GetSegmentAngle(s, t)); },
    };
    static constexpr TKind bezier{
        nullptr,
        [](Path, Segment s, double t) { return CalculateBezierPosition(s, t); },
        [](Path, Segment s, double t) { return CalculateBezierRotation(s, t); },
    };
    static constexpr TKind rows[] = {line, line, circle, ellipse, arc, bezier};
    return RowOf(rows, FPathType);
}

void TPathAnimator::SetPath(TPathType pathType, std::vector<TPathSegment> segments) {
    FPathType = pathType;
    FPathSegments = std::move(segments);
    CalculateLengths();
}

void TPathAnimator::SetTiming(double totalTime, double timeScale) {
    Require(totalTime > 0, u"TotalTime must be greater than zero");
    RequireScale(timeScale);
    FCurrentTime = GetProgress() * totalTime;
    FTotalTime = totalTime;
    FTimeScale = timeScale;
}

bool TPathAnimator::CalculatePosition(double time, double& x, double& y, double& rotation) const {
    const bool ready = FTotalTime > 0 && FTotalTimeWeight > 0 && !FPathSegments.empty();
    if (!ready || !(time >= 0 && time <= FTotalTime))
        return false;

    const double weight = ApplyEasing(time / FTotalTime) * FTotalTimeWeight;
    const auto& sums = FCumulativeTimeWeights;
    // The last sum can lie below the total weight by rounding only.
    const auto found = std::lower_bound(sums.begin(), sums.end() - 1, weight);
    const auto index = static_cast<std::size_t>(found - sums.begin());
    const double before = index == 0 ? 0 : sums[index - 1];
    const double part = std::clamp((weight - before) / FSegmentTimeWeights[index], 0.0, 1.0);
    const double t = GetDistanceAdjustedProgress(index, part);

    const TPathSegment& segment = FPathSegments[index];
    const TPoint2D point = Kind().Position(*this, segment, t);
    x = point.X;
    y = point.Y;
    constexpr double corner = 0.99; // from here on the heading turns into that of the next curve
    if (FPathType == ptBezier && t > corner && index + 1 < FPathSegments.size())
        rotation = BlendRotation(CalculateBezierRotation(segment, 1),
                                 CalculateBezierRotation(FPathSegments[index + 1], 0), (t - corner) / 0.01);
    else
        rotation = Kind().Rotation(*this, segment, t);
    return true;
}

bool TPathAnimator::Update(double deltaTime, double& x, double& y, double& rotation) {
    double remainingDelta = 0;
    return Update(deltaTime, x, y, rotation, remainingDelta);
}

bool TPathAnimator::Update(double deltaTime, double& x, double& y, double& rotation, double& remainingDelta) {
    Require(deltaTime >= 0, u"DeltaTime must be zero or greater");
    remainingDelta = 0;
    const double end = FReverse ? 0 : FTotalTime;
    const double left = std::abs(end - FCurrentTime) / FTimeScale;
    if (deltaTime >= left) {
        FCurrentTime = end;
        remainingDelta = deltaTime - left;
        CalculatePosition(FCurrentTime, x, y, rotation);
        return false;
    }
    const double step = deltaTime * FTimeScale;
    FCurrentTime = std::clamp(FCurrentTime + (FReverse ? -step : step), 0.0, FTotalTime);
    return CalculatePosition(FCurrentTime, x, y, rotation);
}

void TPathAnimator::Reset() { FCurrentTime = FReverse ? FTotalTime : 0; }

void TPathAnimator::UpdateTimeScale(double newScale) {
    RequireScale(newScale);
    FTimeScale = newScale;
}

double TPathAnimator::GetProgress() const { return FTotalTime > 0 ? std::min(1.0, FCurrentTime / FTotalTime) : 0; }

double TPathAnimator::GetPathProgress() const { return ApplyEasing(GetProgress()); }

void TPathAnimator::SetEasing(TPathEasing value) {
    const double progress = GetPathProgress();
    FEasing = value;
    FCurrentTime = InverseEasing(progress) * FTotalTime;
}

bool TPathAnimator::Seek(double progress, double& x, double& y, double& rotation) {
    RequireProgress(progress);
    FCurrentTime = InverseEasing(progress) * FTotalTime;
    return CalculatePosition(FCurrentTime, x, y, rotation);
}

std::vector<std::int32_t> TPathAnimator::GetCrossedWaypoints(double fromProgress, double toProgress) const {
    RequireProgress(fromProgress);
    RequireProgress(toProgress);
    const double from = ApplyEasing(fromProgress);
    const double to = ApplyEasing(toProgress);
    const auto count = static_cast<std::int32_t>(FPathSegments.size());
    const auto fraction = [&](std::int32_t waypoint) {
        if (waypoint == 0 || waypoint == count)
            return waypoint == 0 ? 0.0 : 1.0;
        return FCumulativeTimeWeights[static_cast<std::size_t>(waypoint) - 1] / FTotalTimeWeight;
    };

    std::vector<std::int32_t> crossed;
    if (to > from) {
        for (std::int32_t i = 1; i <= count; ++i)
            if (from < fraction(i) && fraction(i) <= to)
                crossed.push_back(i);
    } else {
        for (std::int32_t i = count - 1; i >= 0; --i)
            if (to <= fraction(i) && fraction(i) < from)
                crossed.push_back(i);
    }
    return crossed;
}

double TPathAnimator::ApplyEasing(double t) const {
    static constexpr double (*rows[])(double) = {
        [](double u) { return u; },
        [](double u) { return u * u; },
        [](double u) { return 1 - (1 - u) * (1 - u); },
        [](double u) { return u < 0.5 ? 2 * u * u : 1 - (2 - 2 * u) * (2 - 2 * u) / 2; },
        [](double u) { return u * u * (3 - 2 * u); },
    };
    return RowOf(rows, FEasing)(std::clamp(t, 0.0, 1.0));
}

double TPathAnimator::InverseEasing(double p) const {
    p = std::clamp(p, 0.0, 1.0);
    if (FEasing == peLinear)
        return p;
    double low = 0, high = 1;
    for (int step = 0; step < 48; ++step) {
        const double middle = (low + high) / 2;
        (p > ApplyEasing(middle) ? low : high) = middle;
    }
    return (low + high) / 2;
}

double TPathAnimator::PointDistance(TPoint2D a, TPoint2D b) { return std::hypot(b.X - a.X, b.Y - a.Y); }

double TPathAnimator::GetSegmentAngle(const TPathSegment& segment, double t) const {
    const bool whole = FPathType == ptEllipse && segment.StartAngle == segment.EndAngle;
    const double end = whole ? segment.StartAngle + 360 : segment.EndAngle;
    return Radians(segment.StartAngle + (end - segment.StartAngle) * t);
}

double TPathAnimator::GetDistanceAdjustedProgress(std::size_t index, double t) const {
    if (Kind().Length || t <= 0 || t >= 1)
        return t;
    const double target = t * FSegmentLengths[index];
    const auto chords = ChordLengths(FPathSegments[index]);
    double sum = 0;
    for (int i = 0; i < ChordCount; sum += chords[i++])
        if (sum + chords[i] >= target)
            return (i + (chords[i] > 0 ? (target - sum) / chords[i] : 1)) / ChordCount;
    return 1;
}

double TPathAnimator::GetSegmentLength(const TPathSegment& segment) const {
    if (Kind().Length)
        return Kind().Length(segment);
    const auto chords = ChordLengths(segment);
    return std::accumulate(chords.begin(), chords.end(), 0.0);
}

std::array<double, TPathAnimator::ChordCount> TPathAnimator::ChordLengths(const TPathSegment& segment) const {
    std::array<double, ChordCount> chords;
    TPoint2D last = Kind().Position(*this, segment, 0);
    for (int i = 0; i < ChordCount; ++i) {
        const TPoint2D next = Kind().Position(*this, segment, (i + 1.0) / ChordCount);
        chords[i] = PointDistance(last, next);
        last = next;
    }
    return chords;
}

void TPathAnimator::CalculateLengths() {
    FSegmentLengths.clear();
    FSegmentTimeWeights.clear();
    FCumulativeTimeWeights.clear();
    FPathLength = FTotalTimeWeight = 0;
    for (const TPathSegment& segment : FPathSegments) {
        // No segment is so short that its time vanishes.
        const double length = std::max(0.000001, GetSegmentLength(segment));
        FPathLength += FSegmentLengths.emplace_back(length);
        FTotalTimeWeight +=
            FSegmentTimeWeights.emplace_back(length / (segment.SpeedFactor > 0 ? segment.SpeedFactor : 1));
        FCumulativeTimeWeights.push_back(FTotalTimeWeight);
    }
}

TPoint2D TPathAnimator::CalculateBezierPosition(const TPathSegment& segment, double t) {
    const double u = 1 - t;
    const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    const auto along = [&](double TPoint2D::*axis) {
        return a * segment.StartPoint.*axis + b * segment.ControlPoint1.*axis + c * segment.ControlPoint2.*axis +
               d * segment.EndPoint.*axis;
    };
    return {along(&TPoint2D::X), along(&TPoint2D::Y)};
}

TPoint2D TPathAnimator::CalculateBezierTangent(const TPathSegment& segment, double t) {
    const double u = 1 - t;
    const double a = 3 * u * u, b = 6 * u * t, c = 3 * t * t;
    const auto along = [&](double TPoint2D::*axis) {
        return a * (segment.ControlPoint1.*axis - segment.StartPoint.*axis) +
               b * (segment.ControlPoint2.*axis - segment.ControlPoint1.*axis) +
               c * (segment.EndPoint.*axis - segment.ControlPoint2.*axis);
    };
    return {along(&TPoint2D::X), along(&TPoint2D::Y)};
}

double TPathAnimator::CalculateBezierRotation(const TPathSegment& segment, double t) {
    const TPoint2D tangent = CalculateBezierTangent(segment, t);
    return std::atan2(tangent.Y, tangent.X);
}

} // namespace vagrel
