"""A copy of the project, with a build tree of its own, in which one change at a time is built and tested."""
import hashlib
import json
import os
import resource
import shutil
import signal
import subprocess
import time
from pathlib import Path

import programs

BYTES_OF_MEMORY = 8 << 30
# What the build with sanitizers would find, ends the program here.
TRAPS = "-fsanitize=bounds,shift,signed-integer-overflow -fsanitize-undefined-trap-on-error"


class Broken(Exception):
    """The project cannot be built, or its tests fail, before anything has been changed."""


def copy_where_different(source, target):
    """Files keep their time where nothing changed, so that nothing is built without need."""
    content = source.read_bytes()
    if not target.exists() or target.read_bytes() != content:
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        shutil.copymode(source, target)


def files_below(root):
    """The project's files without builds and what begins with a point."""
    for top in root.iterdir():
        if not top.name.startswith((".", "build", "Testing")):
            for path in [top] if top.is_file() else top.rglob("*"):
                if path.is_file() and "__pycache__" not in path.parts:
                    yield path.relative_to(root)


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (BYTES_OF_MEMORY, BYTES_OF_MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command, folder, limit, environment=None, prepare=None):
    """Whether the command succeeded within the limit in seconds. Nothing that it started goes on."""
    with subprocess.Popen(command, cwd=folder, env=environment, start_new_session=True, preexec_fn=prepare,
                          stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        try:
            return process.wait(limit) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass


class Trial:
    def __init__(self, root, place):
        self.root, self.source, self.build = root, place / "source", place / "tree"
        self.scratch = place / "scratch"
        self.limits_file = place / "seconds.json"
        self.seconds = json.loads(self.limits_file.read_text()) if self.limits_file.exists() else {}

    def update(self):
        """Makes the copy equal to the project."""
        wanted = set(files_below(self.root))
        for name in wanted:
            copy_where_different(self.root / name, self.source / name)
        if self.source.exists():
            for left_over in set(files_below(self.source)) - wanted:
                (self.source / left_over).unlink()
        self.scratch.mkdir(parents=True, exist_ok=True)

    def configure(self):
        flags = f"-O1 -DNDEBUG {TRAPS}"
        subprocess.run(["cmake", "-S", self.source, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=RelWithDebInfo",
                        f"-DCMAKE_C_FLAGS_RELWITHDEBINFO={flags}", f"-DCMAKE_CXX_FLAGS_RELWITHDEBINFO={flags}",
                        "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DDTKHDDVD_TESTS=ON"],
                       check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["ninja", "-C", self.build], check=True, stdout=subprocess.DEVNULL)
        self.libraries = self.hash_libraries()

    def hash_libraries(self):
        """Of every library, the window's and the boards' included."""
        libraries = sorted(self.build.rglob("*.so"))
        return [hashlib.sha256(library.read_bytes()).digest() for library in libraries]

    def passes(self, program):
        command = [word.replace("BUILD", str(self.build)).replace("SOURCE", str(self.source)) for word in program.command]
        environment = {**os.environ, **programs.ENVIRONMENT, **program.environment}
        return run(command, self.scratch, 10 + 5 * self.seconds.get(program.name, 60), environment, limit_memory)

    def measure(self, wanted):
        """How long each program takes on the unchanged project, which all of them pass."""
        for program in wanted:
            if program.name not in self.seconds:
                start = time.monotonic()
                if not self.passes(program):
                    raise Broken(f"{program.name} fails before anything has been changed")
                self.seconds[program.name] = time.monotonic() - start
                self.limits_file.write_text(json.dumps(self.seconds))

    def builds(self, targets):
        return run(["ninja", "-C", str(self.build), *targets], self.build, 900)

    def hold(self, change):
        """What notices the change: "nothing", a program, "compiler" if it refuses it, "same code" if it sees no difference."""
        path = self.source / change.path
        original = path.read_text()
        lines = original.split("\n")
        lines[change.line] = change.after
        path.write_text("\n".join(lines))
        try:
            return self.hold_built(change.path)
        finally:
            path.write_text(original)

    def hold_built(self, path):
        if not self.builds(["dtkhddvd", "zuvo", *programs.BOARD_LIBRARIES]):
            return "compiler"
        if self.hash_libraries() == self.libraries:
            return "same code"
        for program in programs.of_file(path):
            if not self.builds(program.targets):
                return "compiler"
            if not any(self.passes(program) for _ in range(program.failures)):
                return program.name
        return "nothing"
