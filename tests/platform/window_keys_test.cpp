/// What DirectFB's programs learn of each key: its place, its letter, its character.
#include <gtest/gtest.h>

extern "C" {
#include "keys.h"
}

namespace {

SDL_Keysym pressed(int scancode, int symbol = 0, int modifiers = KMOD_NONE)
{
    SDL_Keysym key = {};
    key.scancode = static_cast<SDL_Scancode>(scancode);
    key.sym = symbol;
    key.mod = static_cast<Uint16>(modifiers);
    return key;
}

struct Place {
    int scancode;
    int identifier;
};

const Place places[] = {
    {SDL_SCANCODE_A, DIKI_A}, {SDL_SCANCODE_Z, DIKI_Z}, {SDL_SCANCODE_1, DIKI_1}, {SDL_SCANCODE_9, DIKI_9},
    {SDL_SCANCODE_0, DIKI_0}, {SDL_SCANCODE_RETURN, DIKI_ENTER}, {SDL_SCANCODE_ESCAPE, DIKI_ESCAPE},
    {SDL_SCANCODE_BACKSPACE, DIKI_BACKSPACE}, {SDL_SCANCODE_TAB, DIKI_TAB}, {SDL_SCANCODE_SPACE, DIKI_SPACE},
    {SDL_SCANCODE_MINUS, DIKI_MINUS_SIGN}, {SDL_SCANCODE_EQUALS, DIKI_EQUALS_SIGN},
    {SDL_SCANCODE_LEFTBRACKET, DIKI_BRACKET_LEFT}, {SDL_SCANCODE_RIGHTBRACKET, DIKI_BRACKET_RIGHT},
    {SDL_SCANCODE_BACKSLASH, DIKI_BACKSLASH}, {SDL_SCANCODE_NONUSHASH, DIKI_BACKSLASH},
    {SDL_SCANCODE_SEMICOLON, DIKI_SEMICOLON}, {SDL_SCANCODE_APOSTROPHE, DIKI_QUOTE_RIGHT},
    {SDL_SCANCODE_GRAVE, DIKI_QUOTE_LEFT}, {SDL_SCANCODE_COMMA, DIKI_COMMA}, {SDL_SCANCODE_PERIOD, DIKI_PERIOD},
    {SDL_SCANCODE_SLASH, DIKI_SLASH}, {SDL_SCANCODE_NONUSBACKSLASH, DIKI_LESS_SIGN},
    {SDL_SCANCODE_CAPSLOCK, DIKI_CAPS_LOCK}, {SDL_SCANCODE_F1, DIKI_F1}, {SDL_SCANCODE_F7, DIKI_F7},
    {SDL_SCANCODE_F12, DIKI_F12}, {SDL_SCANCODE_PRINTSCREEN, DIKI_PRINT}, {SDL_SCANCODE_SCROLLLOCK, DIKI_SCROLL_LOCK},
    {SDL_SCANCODE_PAUSE, DIKI_PAUSE}, {SDL_SCANCODE_INSERT, DIKI_INSERT}, {SDL_SCANCODE_HOME, DIKI_HOME},
    {SDL_SCANCODE_PAGEUP, DIKI_PAGE_UP}, {SDL_SCANCODE_DELETE, DIKI_DELETE}, {SDL_SCANCODE_END, DIKI_END},
    {SDL_SCANCODE_PAGEDOWN, DIKI_PAGE_DOWN}, {SDL_SCANCODE_RIGHT, DIKI_RIGHT}, {SDL_SCANCODE_LEFT, DIKI_LEFT},
    {SDL_SCANCODE_DOWN, DIKI_DOWN}, {SDL_SCANCODE_UP, DIKI_UP}, {SDL_SCANCODE_NUMLOCKCLEAR, DIKI_NUM_LOCK},
    {SDL_SCANCODE_KP_DIVIDE, DIKI_KP_DIV}, {SDL_SCANCODE_KP_MULTIPLY, DIKI_KP_MULT},
    {SDL_SCANCODE_KP_MINUS, DIKI_KP_MINUS}, {SDL_SCANCODE_KP_PLUS, DIKI_KP_PLUS},
    {SDL_SCANCODE_KP_ENTER, DIKI_KP_ENTER}, {SDL_SCANCODE_KP_1, DIKI_KP_1}, {SDL_SCANCODE_KP_9, DIKI_KP_9},
    {SDL_SCANCODE_KP_0, DIKI_KP_0}, {SDL_SCANCODE_KP_PERIOD, DIKI_KP_DECIMAL},
    {SDL_SCANCODE_KP_EQUALS, DIKI_KP_EQUAL}, {SDL_SCANCODE_LCTRL, DIKI_CONTROL_L}, {SDL_SCANCODE_LSHIFT, DIKI_SHIFT_L},
    {SDL_SCANCODE_LALT, DIKI_ALT_L}, {SDL_SCANCODE_LGUI, DIKI_SUPER_L}, {SDL_SCANCODE_RCTRL, DIKI_CONTROL_R},
    {SDL_SCANCODE_RSHIFT, DIKI_SHIFT_R}, {SDL_SCANCODE_RALT, DIKI_ALT_R}, {SDL_SCANCODE_RGUI, DIKI_SUPER_R},
    {SDL_SCANCODE_F13, DIKI_UNKNOWN}, {SDL_SCANCODE_UNKNOWN, DIKI_UNKNOWN}, {SDL_SCANCODE_APPLICATION, DIKI_UNKNOWN},
};

TEST(WindowKeys, AreNamedByTheirPlace)
{
    for (const Place& place : places) {
        const SDL_Keysym key = pressed(place.scancode);
        EXPECT_EQ(int(key_identifier(&key)), place.identifier) << place.scancode;
    }
}

/// On a French keyboard A is where others have Q, and digits need Shift.
TEST(WindowKeys, AreNamedByTheirLetterOrDigit)
{
    const SDL_Keysym a = pressed(SDL_SCANCODE_Q, SDLK_a), z = pressed(SDL_SCANCODE_W, SDLK_z);
    EXPECT_EQ(key_identifier(&a), DIKI_A);
    EXPECT_EQ(key_identifier(&z), DIKI_Z);
    const SDL_Keysym zero = pressed(SDL_SCANCODE_Q, SDLK_0), nine = pressed(SDL_SCANCODE_Q, SDLK_9);
    EXPECT_EQ(key_identifier(&zero), DIKI_0);
    EXPECT_EQ(key_identifier(&nine), DIKI_9);
    const SDL_Keysym ampersand = pressed(SDL_SCANCODE_1, SDLK_AMPERSAND), colon = pressed(SDL_SCANCODE_PERIOD, SDLK_COLON);
    EXPECT_EQ(key_identifier(&ampersand), DIKI_1);
    EXPECT_EQ(key_identifier(&colon), DIKI_PERIOD);
}

TEST(WindowKeys, HaveCharacters)
{
    const auto symbol = [](int sym, int modifiers) {
        const SDL_Keysym key = pressed(0, sym, modifiers);
        return int(key_symbol(&key));
    };
    EXPECT_EQ(symbol(SDLK_a, KMOD_NONE), 'a');
    EXPECT_EQ(symbol(SDLK_a, KMOD_LSHIFT), 'A');
    EXPECT_EQ(symbol(SDLK_z, KMOD_RSHIFT), 'Z');
    EXPECT_EQ(symbol(SDLK_5, KMOD_LSHIFT), '5');
    EXPECT_EQ(symbol(SDLK_EXCLAIM, KMOD_NONE), '!');
    EXPECT_EQ(symbol(SDLK_SPACE, KMOD_NONE), DIKS_NULL) << "its text comes by itself";
    EXPECT_EQ(symbol(SDLK_DELETE, KMOD_NONE), DIKS_NULL);
    EXPECT_EQ(symbol(SDLK_F3, KMOD_NONE), DIKS_NULL);
}

TEST(WindowKeys, ReadUtf8)
{
    EXPECT_EQ(int(key_symbol_of_text("a")), 0x61);
    EXPECT_EQ(int(key_symbol_of_text("\x7f")), 0x7f);
    EXPECT_EQ(int(key_symbol_of_text("\xc2\x80")), 0x80);
    EXPECT_EQ(int(key_symbol_of_text("\xc3\xa9")), 0xe9);
    EXPECT_EQ(int(key_symbol_of_text("\xdf\xbf")), 0x7ff);
    EXPECT_EQ(int(key_symbol_of_text("\xe0\xa0\x80")), 0x800);
    EXPECT_EQ(int(key_symbol_of_text("\xe2\x82\xac")), 0x20ac);
    EXPECT_EQ(int(key_symbol_of_text("\xf0\x9f\x98\x80")), DIKS_NULL) << "a symbol has 16 bits";
}

} // namespace
