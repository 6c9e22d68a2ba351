#pragma once

#include "documents/text/rtf/rtf.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvex {

inline constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
inline constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";

struct OpenTest : testing::Test {
    TestProgram t;

    void addPair()
    {
        t.files.addFile(mig, "Rem mine\r\nBTN S1 Fire\r\n");
        t.files.addFile(migMacros, "Fire = f\r\n");
    }
    /// A shadow of a text with one blue character.
    void addShadow(const std::string& name, const std::string& text)
    {
        Pane pane;
        pane.setText(text);
        pane.setSelLength(1);
        pane.setSelColor(0xFF0000);
        t.files.addFile("c:\\tarvex\\Rtf\\" + name, writeRtf(pane.TextRTF()));
    }
    std::string joystickText() { return t.editor().JoystickText.Text(); }
    std::string macroText() { return t.editor().MacroText.Text(); }
};

} // namespace tarvex
