#include "keys.h"

/* Keys that follow each other in both numberings. */
static const struct {
    int scancode, count;
    DFBInputDeviceKeyIdentifier identifier;
} rows[] = {
    {SDL_SCANCODE_A, 26, DIKI_A},
    {SDL_SCANCODE_1, 9, DIKI_1},
    {SDL_SCANCODE_0, 1, DIKI_0},
    {SDL_SCANCODE_RETURN, 1, DIKI_ENTER},
    {SDL_SCANCODE_ESCAPE, 1, DIKI_ESCAPE},
    {SDL_SCANCODE_BACKSPACE, 1, DIKI_BACKSPACE},
    {SDL_SCANCODE_TAB, 1, DIKI_TAB},
    {SDL_SCANCODE_SPACE, 1, DIKI_SPACE},
    {SDL_SCANCODE_MINUS, 1, DIKI_MINUS_SIGN},
    {SDL_SCANCODE_EQUALS, 1, DIKI_EQUALS_SIGN},
    {SDL_SCANCODE_LEFTBRACKET, 1, DIKI_BRACKET_LEFT},
    {SDL_SCANCODE_RIGHTBRACKET, 1, DIKI_BRACKET_RIGHT},
    {SDL_SCANCODE_BACKSLASH, 1, DIKI_BACKSLASH},
    {SDL_SCANCODE_NONUSHASH, 1, DIKI_BACKSLASH},
    {SDL_SCANCODE_SEMICOLON, 1, DIKI_SEMICOLON},
    {SDL_SCANCODE_APOSTROPHE, 1, DIKI_QUOTE_RIGHT},
    {SDL_SCANCODE_GRAVE, 1, DIKI_QUOTE_LEFT},
    {SDL_SCANCODE_COMMA, 1, DIKI_COMMA},
    {SDL_SCANCODE_PERIOD, 1, DIKI_PERIOD},
    {SDL_SCANCODE_SLASH, 1, DIKI_SLASH},
    {SDL_SCANCODE_NONUSBACKSLASH, 1, DIKI_LESS_SIGN},
    {SDL_SCANCODE_CAPSLOCK, 1, DIKI_CAPS_LOCK},
    {SDL_SCANCODE_F1, 12, DIKI_F1},
    {SDL_SCANCODE_PRINTSCREEN, 1, DIKI_PRINT},
    {SDL_SCANCODE_SCROLLLOCK, 1, DIKI_SCROLL_LOCK},
    {SDL_SCANCODE_PAUSE, 1, DIKI_PAUSE},
    {SDL_SCANCODE_INSERT, 1, DIKI_INSERT},
    {SDL_SCANCODE_HOME, 1, DIKI_HOME},
    {SDL_SCANCODE_PAGEUP, 1, DIKI_PAGE_UP},
    {SDL_SCANCODE_DELETE, 1, DIKI_DELETE},
    {SDL_SCANCODE_END, 1, DIKI_END},
    {SDL_SCANCODE_PAGEDOWN, 1, DIKI_PAGE_DOWN},
    {SDL_SCANCODE_RIGHT, 1, DIKI_RIGHT},
    {SDL_SCANCODE_LEFT, 1, DIKI_LEFT},
    {SDL_SCANCODE_DOWN, 1, DIKI_DOWN},
    {SDL_SCANCODE_UP, 1, DIKI_UP},
    {SDL_SCANCODE_NUMLOCKCLEAR, 1, DIKI_NUM_LOCK},
    {SDL_SCANCODE_KP_DIVIDE, 1, DIKI_KP_DIV},
    {SDL_SCANCODE_KP_MULTIPLY, 1, DIKI_KP_MULT},
    {SDL_SCANCODE_KP_MINUS, 1, DIKI_KP_MINUS},
    {SDL_SCANCODE_KP_PLUS, 1, DIKI_KP_PLUS},
    {SDL_SCANCODE_KP_ENTER, 1, DIKI_KP_ENTER},
    {SDL_SCANCODE_KP_1, 9, DIKI_KP_1},
    {SDL_SCANCODE_KP_0, 1, DIKI_KP_0},
    {SDL_SCANCODE_KP_PERIOD, 1, DIKI_KP_DECIMAL},
    {SDL_SCANCODE_KP_EQUALS, 1, DIKI_KP_EQUAL},
    {SDL_SCANCODE_LCTRL, 1, DIKI_CONTROL_L},
    {SDL_SCANCODE_LSHIFT, 1, DIKI_SHIFT_L},
    {SDL_SCANCODE_LALT, 1, DIKI_ALT_L},
    {SDL_SCANCODE_LGUI, 1, DIKI_SUPER_L},
    {SDL_SCANCODE_RCTRL, 1, DIKI_CONTROL_R},
    {SDL_SCANCODE_RSHIFT, 1, DIKI_SHIFT_R},
    {SDL_SCANCODE_RALT, 1, DIKI_ALT_R},
    {SDL_SCANCODE_RGUI, 1, DIKI_SUPER_R},
};

static DFBInputDeviceKeyIdentifier identifier_of_place(int scancode)
{
    size_t i;

    for (i = 0; i < sizeof(rows) / sizeof(rows[0]); ++i)
        if (scancode >= rows[i].scancode && scancode < rows[i].scancode + rows[i].count)
            return rows[i].identifier + (unsigned int)(scancode - rows[i].scancode);
    return DIKI_UNKNOWN;
}

DFBInputDeviceKeyIdentifier key_identifier(const SDL_Keysym *key)
{
    if (key->sym >= SDLK_a && key->sym <= SDLK_z)
        return DIKI_A + (unsigned int)(key->sym - SDLK_a);
    if (key->sym >= SDLK_0 && key->sym <= SDLK_9)
        return DIKI_0 + (unsigned int)(key->sym - SDLK_0);
    return identifier_of_place((int)key->scancode);
}

DFBInputDeviceKeySymbol key_symbol(const SDL_Keysym *key)
{
    if (key->sym <= SDLK_SPACE || key->sym == SDLK_DELETE || (key->sym & SDLK_SCANCODE_MASK))
        return DIKS_NULL;
    if (key->sym >= SDLK_a && key->sym <= SDLK_z && (key->mod & KMOD_SHIFT))
        return DIKS_CAPITAL_A + (unsigned int)(key->sym - SDLK_a);
    return (DFBInputDeviceKeySymbol)key->sym;
}

DFBInputDeviceKeySymbol key_symbol_of_text(const char *text)
{
    const unsigned char *bytes = (const unsigned char *)text;

    if (bytes[0] < 0x80)
        return bytes[0];
    if (bytes[0] < 0xE0)
        return (bytes[0] & 0x1Fu) << 6 | (bytes[1] & 0x3Fu);
    if (bytes[0] < 0xF0)
        return (bytes[0] & 0x0Fu) << 12 | (bytes[1] & 0x3Fu) << 6 | (bytes[2] & 0x3Fu);
    return DIKS_NULL;
}
