#ifndef ZUVO_WORDS_H
#define ZUVO_WORDS_H

namespace zuvo {

/// A picture size that the display can be asked for.
struct DisplayFormat {
    const char* name;           ///< The size as `format=` names it.
    unsigned int video_format;  ///< Its number in zuvo_display_settings.
    int width, height;
};

/// How the picture is shown on a desktop.
struct WindowSettings {
    bool is_on;                 ///< Show a window where there is a display.
    bool is_full_screen;
    int width, height;          ///< Of the window; 0 for the picture's own size.
};

/// What the platform was asked for, by `ZUVOARGS` and by arguments that begin with `--zuvo:`.
struct Options {
    bool engine;                    ///< Offer the drawing engine.
    bool accel;                     ///< Let DirectFB draw with the platform's graphics driver.
    const DisplayFormat* format;
    WindowSettings window;
};

/// The options so far, read first where they have not been. The defaults are engine, driver and window on, and
/// 1920 x 1080.
const Options& options();

/// The same after zuvo_init, which reads them; asked by every call of the engine.
const Options& read_options();

/// Returns to the defaults, then reads `ZUVOARGS` and the options on the process's own command line.
void read_start_options();

/// Reads the options among a program's arguments and removes them. Either pointer, and the vector, may be NULL.
void take_argument_options(int* argc, char*** argv);

/// Returns the format with a number of zuvo_display_settings, NULL when there is none.
const DisplayFormat* find_format(unsigned int video_format);

/// Makes @p format the one in force.
void set_format(const DisplayFormat* format);

} // namespace zuvo

#endif
