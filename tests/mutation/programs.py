"""Which test programs are held against a change, the quickest first."""
from typing import NamedTuple

# No display, no configuration of the person who runs this.
ENVIRONMENT = {"HOME": "/nonexistent", "DISPLAY": "", "WAYLAND_DISPLAY": "", "DFBARGS": "", "ZUVOARGS": ""}


# Their boards bring their platform along.
BOARD_LIBRARIES = ("zuvo_skeleton", "zuvo_virtual")


class Program(NamedTuple):
    """
    A command, in whose words BUILD and SOURCE stand for the two trees, and what has to be built for it. Where other work on the
    machine may make it fail now and then, more than one failure is wanted.
    """
    name: str
    command: tuple
    targets: tuple
    environment: dict
    failures: int = 1


def gtest(target, *options, name=None, needs=(), **environment):
    """A program of GoogleTest, all of its tests in one process."""
    return Program(name or target, (f"BUILD/{target}", "--gtest_fail_fast", "--gtest_brief=1", *options), (target, *needs),
                   environment)


def ctest(name, suites, needs):
    """Test suites whose tests need a process each."""
    return Program(name, ("ctest", "--test-dir", "BUILD", "-j", "2", "--stop-on-failure", "--no-tests=error", "-R",
                          f"^({'|'.join(suites)})[.]"), needs, {})


def fuzzer(name, count):
    return Program(f"fuzz_{name}", (f"BUILD/fuzz_{name}", f"SOURCE/tests/fuzz/corpus/{name}", str(count)), (f"fuzz_{name}",), {})


def unit(*names):
    return [gtest(f"unit_{name}") for name in names]


REAL = gtest("real_tests", "--gtest_filter=-ScratchPad.IsTransparentAfter*:*AttachCycles*")
REAL_SLOW = gtest("real_tests", "--gtest_filter=ScratchPad.IsTransparentAfter*:*AttachCycles*", name="real_tests, the slow ones")
REAL_DRIVER = gtest("real_tests", name="real_tests, driver", DTKHDDVD_TEST_DRIVER="hosted")
FAULTS = gtest("faults")
ALLOCATION = gtest("allocation_faults")
DIFFERENTIAL = gtest("differential_tests")
SAME_NUMBERS = gtest("same_numbers")
SAME_PICTURES = gtest("same_pictures")
ENGINE_PARTS = gtest("engine_parts")
HOSTED = ctest("hosted_platform", ("EngineErrors", "EngineErrorText", "EngineWithoutDirectFB", "Extreme", "Parts", "EnginePicture",
                                   "Of/EnginePattern", "Hosted", "Known/Format"), ("hosted_platform",))
ENGINE_MEMORY = ctest("engine_memory", ("EngineMemory",), ("engine_memory",))
RESTART = gtest("hosted_platform", "--gtest_filter=Restart.*", name="hosted_platform, a hundred starts")
DRIVER = gtest("platform_accel")
THREADS = gtest("threads_test")
RACES = gtest("surface_races_test")
BOARDS = Program("boards", ("ctest", "--test-dir", "BUILD", "-j", "2", "--stop-on-failure", "--no-tests=error", "-R",
                            "^(conformance[.](skeleton|virtual)|/?Boards[.].*|VirtualBoard[.].*|virtual_board[.].*)$"),
                 ("zuvo_check", "check_test", "real_tests", "threads_test", *BOARD_LIBRARIES), {})
FUZZ_TOOLKIT = fuzzer("toolkit", 3000)
FUZZ_ENGINE = fuzzer("engine", 20000)
TEST_DTKHD = gtest("test_dtkhd_test", needs=("test_dtkhd", "recorded_test_dtkhd"))
TRACE = gtest("trace_test", needs=("all",))
PICTURES = gtest("pictures_test", needs=("all",))
DEMO = gtest("demo_test", needs=("all",))
KEYS = gtest("window_keys")
# What starts a hundred programs takes half of the time.
WINDOW = ctest("window_test", ("WaylandCompositor", "ScaledWindow", "AProgramThatIgnoresEscape", "ClosingTheWindow", "Drawn/Window", "Of/Server",
                               "Named/Example", "WindowInput", "DeadDisplay", "CompositorWithoutAKeyboardAndMouse", "WithoutSdl",
                               "Options", "Modes", "Shown/LayerMode"), ("all",))._replace(failures=2)

TOOLKIT = [*unit("dispatch", "pen", "toolkit", "raster", "software", "hardware", "main", "test_dtkhd", "allocation"), SAME_NUMBERS,
           REAL, SAME_PICTURES, FAULTS, ALLOCATION, DIFFERENTIAL, TRACE, TEST_DTKHD, PICTURES, FUZZ_TOOLKIT, REAL_SLOW, REAL_DRIVER]

# The first prefix that fits a file is its own.
TABLE = (
    ("src/", TOOLKIT),
    ("geometry/", [*TOOLKIT, ENGINE_PARTS, HOSTED, FUZZ_ENGINE]),
    ("test_dtkhd/", [*unit("test_dtkhd", "main"), TEST_DTKHD]),
    ("platform/include/", [*unit("hardware"), HOSTED, TEST_DTKHD]),
    ("platform/hosted/engine/", [ENGINE_PARTS, HOSTED, ENGINE_MEMORY, SAME_PICTURES, DIFFERENTIAL, FUZZ_ENGINE, PICTURES, REAL_DRIVER, RESTART, THREADS]),
    ("platform/hosted/pixels/", [DRIVER, ENGINE_PARTS, REAL_DRIVER, HOSTED, DIFFERENTIAL, SAME_PICTURES, FUZZ_ENGINE, PICTURES]),
    ("platform/hosted/driver/", [DRIVER, ENGINE_PARTS, REAL_DRIVER, HOSTED, DIFFERENTIAL, SAME_PICTURES, FUZZ_ENGINE, PICTURES]),
    ("platform/hosted/window/", [KEYS, WINDOW, DEMO]),
    ("platform/hosted/", [HOSTED, ENGINE_PARTS, RACES, REAL_DRIVER, DIFFERENTIAL, DEMO, TEST_DTKHD, PICTURES, RESTART, WINDOW]),
    ("platform/", [BOARDS]),
)


def of_file(path):
    """The programs for a file of the project."""
    return next(programs for prefix, programs in TABLE if path.startswith(prefix))
