#pragma once

#include "composer/insert_options.h"
#include "documents/files/differences.h"
#include "documents/files/outside_notice.h"
#include "documents/find/find_and_replace.h"
#include "documents/find/find_bar.h"
#include "documents/pair/editor.h"
#include "documents/window/last_pair.h"
#include "generators/generators.h"
#include "help/help.h"
#include "language/commands/colour_as_typed.h"
#include "lists/lists.h"
#include "platform/input_devices.h"
#include "platform/platform.h"
#include "preferences/preferences.h"
#include "safein/raw_form.h"
#include "shell/menus.h"
#include "shell/mum.h"
#include "shell/operations.h"
#include "shell/shared.h"
#include "templates/template_form.h"
#include "testers/testers.h"
#include "viewer/view_image.h"
#include "wizards/wizards.h"

#include <optional>

namespace tarvex {

/// The whole program over a platform: builds every unit and wires the commands to those who do the work.
class Program {
public:
    /// Without devices the testers find no joystick.
    explicit Program(Platform& platform, std::optional<InputDevices> devices = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Comes up, in the order that users see. False: another copy runs, and the process is to end at once.
    bool start();
    /// The frame is to close: asks about unsaved files, then takes everything down and ends the message loop. False:
    /// the user stays.
    bool exit();

    Platform& platform;
    NoJoystick noJoystick;
    NoKeyboard noKeyboard;
    Shared shared;
    Menus menus;
    Mum mum;
    Operations operations;
    Editor editor;
    ColourAsTyped colourAsTyped;
    FindAndReplace findAndReplace;
    FindBar findBar;
    OutsideNotices outsideNotices;
    Differences differences;
    LastPair lastPair;
    RAWform safein;
    InsertOptions composer;
    Generators generators;
    Wizards wizards;
    TemplateForm templateEditor;
    Testers testers;
    ViewImage imageViewer;
    Lists lists;
    Preferences preferences;
    Help help;
};

} // namespace tarvex
