#!/usr/bin/env python3
"""Times the start of varn to its first window against that of an empty window of the same toolkit, and of a question
like the one that varn begins with.

    xvfb-run -a python3 bench/compare_start.py build/varn build/empty_window

A start ends when the X server tells that a window is shown (needs Debian's x11-utils); the program is killed then.
varn starts on the sample survey in a data folder of its own. The programs are started in turn; the medians of the
elapsed time and of the processor's time, and those of the ratios, are printed.
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
INSTALLATION = os.path.join(ROOT, "installation")
STARTS = 25


def make_home(home):
    """A data folder of a user who started varn before."""
    drive = os.path.join(home, "varn", "drive_c", "Varn62E")
    shutil.copytree(INSTALLATION, os.path.join(drive, "Varn"))
    with open(os.path.join(drive, "Varn", "VarnDriveName.map"), "w", encoding="utf-8", newline="") as file:
        file.write('"C:\\Varn62E\\"\r\n')
    with open(os.path.join(drive, "VarnMapName.dat"), "w", encoding="utf-8", newline="") as file:
        file.write('"\\Sample","Arial",12,#TRUE#,#FALSE#,0\r\n')


def watch_windows():
    """Prints what becomes of windows, a line as soon as it happens."""
    watch = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"], stdout=subprocess.PIPE,
                             text=True)
    time.sleep(0.3)  # until it listens
    return watch


def start(command, environment):
    """Seconds from the start of `command` to its first window: elapsed, and those of the processor."""
    watch = watch_windows()
    begin = time.perf_counter()
    process = subprocess.Popen(command, env=environment)
    next(line for line in watch.stdout if line.startswith("MapNotify"))
    elapsed = time.perf_counter() - begin
    process.kill()
    usage = os.wait4(process.pid, 0)[2]
    process.returncode = 0  # it was waited for
    watch.kill()
    watch.wait()
    return elapsed, usage.ru_utime + usage.ru_stime


def main():
    varn, empty = (os.path.abspath(program) for program in sys.argv[1:3])
    commands = {"varn": [varn], "empty window": [empty], "question alone": [empty, "question"]}
    with tempfile.TemporaryDirectory() as home:
        make_home(home)
        server_stays = watch_windows()  # it begins anew when its last client goes
        environment = dict(os.environ, XDG_DATA_HOME=home, XDG_RUNTIME_DIR=home, XDG_CONFIG_HOME=home,
                           QT_QPA_PLATFORM="xcb")
        for command in commands.values():
            start(command, environment)
        starts = [{name: start(command, environment) for name, command in commands.items()} for _ in range(STARTS)]
        server_stays.kill()
        server_stays.wait()
    for measure, column in ("elapsed", 0), ("processor", 1):
        own = statistics.median(each["varn"][column] for each in starts)
        for name in "empty window", "question alone":
            other = statistics.median(each[name][column] for each in starts)
            ratio = statistics.median(each["varn"][column] / each[name][column] for each in starts)
            print(f"start, {measure}: varn {own * 1000:.0f} ms, {name} {other * 1000:.0f} ms, ratio {ratio:.2f}")


if __name__ == "__main__":
    main()
