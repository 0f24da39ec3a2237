// SPDX-License-Identifier: MIT
// A drawing of 400 × 400 mm on which sessions are played.
#pragma once

#include <tests/support/TestHost.h>

#include <host/EnumNames.h>
#include <host/Session.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <gtest/gtest.h>

namespace vagrel {

inline void PrintTo(const TKSLPto& point, std::ostream* out) { *out << "(" << point.bX << ", " << point.bY << ")"; }

namespace test {

inline std::string Event(const std::string& op, TKSLPto at) {
    return R"({"op":")" + op + R"(","x":)" + std::to_string(at.bX) + R"(,"y":)" + std::to_string(at.bY) + "}";
}

inline std::string Tool(const std::string& action) { return R"({"op":"SetAction","action":")" + action + R"("})"; }

inline std::string Where() {
    return std::string(EnumName(TAct::GetAction())) + " " + std::string(EnumName(TAct::GetState()));
}

template <class Host>
class SessionsOn : public testing::Test {
protected:
    SessionsOn() { label.GetMeasure().SetLabelSizeMM(400, 400); }
    ~SessionsOn() override { TAct::ResetForTests(); }

    void Play(const std::string& lines) { session.Play(lines); }
    /// What a line causes.
    std::string Traced(const std::string& line) {
        trace.clear();
        session.PlayLine(line);
        return trace;
    }

    struct TReset {
        TReset() { TAct::ResetForTests(); }
    } reset; ///< before the document begins its action
    Host label{emDrawing, unMM, 1};
    std::string trace;
    Session session{label, [this](const std::string& line) { trace += line + "\n"; }};
};

class Sessions : public SessionsOn<TestHost> {};

} // namespace test
} // namespace vagrel
