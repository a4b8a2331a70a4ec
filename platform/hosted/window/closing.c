#include "closing.h"

#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include "input.h"
#include "picture.h"

enum { patience = 2000000 };        /* Microseconds. */

static struct {
    long long since;
    bool has_begun;
    bool is_escape_pressed;
    bool has_signalled;
    bool is_display_lost;
} closing;

void closing_reset(void)
{
    closing.has_begun = false;
    closing.is_escape_pressed = false;
    closing.has_signalled = false;
}

/* A program that is just setting up its layer may not get it at once. */
static void press_escape(void)
{
    if (!closing.is_escape_pressed)
        closing.is_escape_pressed = input_press_escape();
}

void closing_begin(bool is_display_lost)
{
    closing.is_display_lost = is_display_lost;
    if (closing.has_begun)
        return;
    closing.has_begun = true;
    closing.since = picture_clock();
    press_escape();
}

static bool is_caught(int number)
{
    struct sigaction action;

    return !sigaction(number, NULL, &action) && action.sa_handler != SIG_DFL && action.sa_handler != SIG_IGN;
}

/* Exit handlers would meet threads that still draw. */
static void end_program(void)
{
    fputs(closing.is_display_lost ? "zuvo: the display has gone\n" : "zuvo: the window was closed\n", stderr);
    _exit(closing.is_display_lost ? EXIT_FAILURE : EXIT_SUCCESS);
}

void closing_insist(void)
{
    if (!closing.has_begun)
        return;
    press_escape();
    if (picture_clock() - closing.since < patience)
        return;
    if (closing.has_signalled || !is_caught(SIGTERM))
        end_program();
    closing.has_signalled = true;
    closing.since = picture_clock();
    kill(getpid(), SIGTERM);
}
