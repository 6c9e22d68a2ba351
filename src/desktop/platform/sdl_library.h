#pragma once

#include <QLibrary>

#include <SDL.h>

namespace tarvex {

/// SDL, loaded at run time, so that the start of the program doesn't wait for it. Users derive the table of the
/// functions that they call; the types are those of SDL's header.
class SdlLibrary {
public:
    decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;

protected:
    /// False: the library isn't there.
    bool loadLibrary()
    {
        return m_library.load() && find(initSubSystem, "SDL_InitSubSystem") && find(quitSubSystem, "SDL_QuitSubSystem");
    }
    /// False: the library has no function of this name.
    template <typename Function> bool find(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(m_library.resolve(name));
        return function != nullptr;
    }

private:
    QLibrary m_library{QStringLiteral("SDL2-2.0"), 0};
};

} // namespace tarvex
