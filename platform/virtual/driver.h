/**
 * @file driver.h
 * The board's DirectFB graphics driver. It draws nothing but the copy that a Flip makes; what matters is that DirectFB
 * asks it to wait for the drawing engine.
 */
#ifndef BOARD_DRIVER_H
#define BOARD_DRIVER_H

#ifdef __cplusplus
extern "C" {
#endif

/** Makes DirectFB find the driver; to be called before it starts. */
void driver_register(void);

/** For what somebody waits. */
typedef enum BoardWait {
    BOARD_WAIT_SYNC,                /**< zuvo_dtk_sync. */
    BOARD_WAIT_IDLE,                /**< IDirectFB::WaitIdle. */
    BOARD_WAIT_LOCK,                /**< The CPU is about to touch what the engine draws on, or to free its memory. */
    BOARD_WAIT_FLIP                 /**< A layer's picture is about to be copied to where it is shown. */
} BoardWait;

/** Waits until the engine has drawn everything. Any thread may call it. */
void board_wait(BoardWait reason);

#ifdef __cplusplus
}
#endif

#endif
