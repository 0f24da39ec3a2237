// SPDX-License-Identifier: MIT
// Moves a point along a path in time. The host hands in the time that has passed and receives a position and a heading;
// the animator knows neither documents nor a clock.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vagrel {

/// The kind of all segments of a path.
enum TPathType : std::int32_t { ptLine, ptPolyline, ptCircle, ptEllipse, ptArc, ptBezier };

/// How progress on the path follows progress in time.
enum TPathEasing : std::int32_t { peLinear, peEaseIn, peEaseOut, peEaseInOut, peSmoothStep };

/// One segment of a path. Coordinates are in any one unit; which fields count depends on the kind of the path.
struct TPathSegment {
    TPoint2D StartPoint{}; ///< the centre of a circle, ellipse or arc
    TPoint2D EndPoint{};   ///< line, polyline, Bezier
    TPoint2D ControlPoint1{};
    TPoint2D ControlPoint2{};
    double Radius = 0;      ///< circle, arc, and ellipse along X
    double RadiusY = 0;     ///< ellipse
    double StartAngle = 0;  ///< ellipse and arc, degrees from +X towards +Y
    double EndAngle = 0;    ///< ellipse and arc, degrees; an ellipse with equal angles goes once round
    double SpeedFactor = 1; ///< 2 takes half the time for the same length; 0 or below counts as 1
};

/// Runs along a path of segments, each given time by its length over its speed factor. Headings are in radians from +X
/// towards +Y. Two clocks meet here: host time, in which updates come, and animation time, which is host time × the
/// time scale. Not thread-safe; a copy runs on its own.
class TPathAnimator {
public:
    /// Takes a path of one kind. The clock stays.
    void SetPath(TPathType pathType, std::vector<TPathSegment> segments);

    /// Sets the duration of a run in animation time, and the animation time per unit of host time. Keeps the progress.
    /// Throws EArgumentOutOfRangeException when either is not above 0.
    void SetTiming(double totalTime, double timeScale);

    /// The place at an animation time, without moving the clock. False, and nothing written, when there is no path or
    /// no duration, or when `time` is outside 0 to the duration.
    bool CalculatePosition(double time, double& x, double& y, double& rotation) const;

    /// Advances the clock by host time. False when the run has ended, whose last place is given, or when the path is
    /// not ready. Throws EArgumentOutOfRangeException when `deltaTime` is below 0.
    bool Update(double deltaTime, double& x, double& y, double& rotation);

    /// As above; `remainingDelta` is the host time that the run did not use.
    bool Update(double deltaTime, double& x, double& y, double& rotation, double& remainingDelta);

    /// Puts the clock at the start of the present direction.
    void Reset();

    /// Sets the direction alone; a fresh run needs `Reset` as well.
    void SetReverse(bool value) { FReverse = value; }
    bool IsReverse() const { return FReverse; }

    /// Sets the animation time per unit of host time. Throws EArgumentOutOfRangeException when it is not above 0.
    void UpdateTimeScale(double newScale);
    double GetTimeScale() const { return FTimeScale; }

    /// The part of the duration that has passed, 0 to 1; 0 without a duration.
    double GetProgress() const;
    /// The part of the path that lies behind, 0 to 1, each segment counted by its time.
    double GetPathProgress() const;

    /// Changes the easing and keeps the place on the path.
    void SetEasing(TPathEasing value);
    TPathEasing GetEasing() const { return FEasing; }

    /// Moves the clock to where the path progress is `progress`, and gives the place as `CalculatePosition` does. False
    /// without a duration. Throws EArgumentOutOfRangeException outside 0 to 1.
    bool Seek(double progress, double& x, double& y, double& rotation);

    /// The joints passed between two values of `GetProgress`, in the order of the way: joint 0 is the start of the
    /// path, joint i the end of segment i counted from 1. The joint stood on at `fromProgress` is not passed, the one
    /// at `toProgress` is. Throws EArgumentOutOfRangeException outside 0 to 1.
    std::vector<std::int32_t> GetCrossedWaypoints(double fromProgress, double toProgress) const;

    /// The sum of the lengths of the segments, in the unit of the path.
    double GetPathLength() const { return FPathLength; }

protected:
    double ApplyEasing(double t) const;
    double InverseEasing(double p) const;
    static double PointDistance(TPoint2D a, TPoint2D b);
    /// The angle of an ellipse or arc at parameter `t`, in radians.
    double GetSegmentAngle(const TPathSegment& segment, double t) const;
    /// The parameter at which the part `t` of the length of segment `index`, counted from 0, lies behind.
    double GetDistanceAdjustedProgress(std::size_t index, double t) const;
    double GetSegmentLength(const TPathSegment& segment) const;
    void CalculateLengths();
    static TPoint2D CalculateBezierPosition(const TPathSegment& segment, double t);
    static TPoint2D CalculateBezierTangent(const TPathSegment& segment, double t);
    static double CalculateBezierRotation(const TPathSegment& segment, double t);

private:
    /// Curves without a closed form of their length are measured, and walked, in this many chords.
    static constexpr int ChordCount = 48;

    struct TKind;
    const TKind& Kind() const;
    std::array<double, ChordCount> ChordLengths(const TPathSegment& segment) const;

    TPathType FPathType = ptLine;
    std::vector<TPathSegment> FPathSegments;
    double FTotalTime = 0;
    double FTimeScale = 1;
    double FCurrentTime = 0; ///< 0 to FTotalTime
    std::vector<double> FSegmentLengths;
    std::vector<double> FSegmentTimeWeights;    ///< length ÷ speed factor
    std::vector<double> FCumulativeTimeWeights; ///< sums up to and with each segment
    double FPathLength = 0;
    double FTotalTimeWeight = 0;
    bool FReverse = false;
    TPathEasing FEasing = peLinear;
};

} // namespace vagrel
