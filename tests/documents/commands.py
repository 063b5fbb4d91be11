#!/usr/bin/env python3
"""Runs the commands of the documents, and compiles their code.

    commands.py BUILD [PAGE...]

Each page has a folder of its own that looks like a fresh checkout built in BUILD. Its ```sh blocks run
there in their order, as one shell would; a block marked ```sh no-run does not: it needs a device, a
display, another machine or an hour. Each ```cpp block compiles against the plugin's headers.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FENCE = re.compile(r"^( *)```(\S*) ?(.*)$")


def blocks(page):
    """(line, language, mark, text) of each block of code."""
    block = None
    for number, line in enumerate(page.read_text().splitlines(), 1):
        fence = FENCE.match(line)
        if fence and block is None:
            block = (number, fence[2], fence[3], [], len(fence[1]))
        elif fence:
            yield *block[:3], "\n".join(block[3]) + "\n"
            block = None
        elif block:
            block[3].append(line[block[4]:])
    assert block is None, f"{page}: the block of line {block[0]} has no end"


def checkout(folder, build):
    """What a fresh clone shows; what is built is written beside it, not into it."""
    for name in subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, capture_output=True,
                               text=True).stdout.splitlines():
        top = name.split("/")[0]
        if not (folder / top).is_symlink():
            (folder / top).symlink_to(ROOT / top)
    (folder / "build").mkdir()
    (folder / "build" / "release").symlink_to(build)


def run(page, build, folder):
    script = ""
    for line, language, mark, text in blocks(page):
        if language == "sh" and not mark:
            script += f"at={line}\n{text}"
    if not script:
        return True
    checkout(folder, build)
    environment = {**os.environ, "HOME": str(folder), "QT_QPA_PLATFORM": "offscreen",
                   "PATH": f"{build}/bin:/usr/lib/ccache:{os.environ['PATH']}"}
    end = "trap 'status=$?; [ $status -eq 0 ] || echo \"the block of line $at fails\" >&2' EXIT\n"
    done = subprocess.run(["bash", "-euo", "pipefail", "-c", end + script], cwd=folder, env=environment,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, errors="replace")
    if done.returncode:
        print(f"{page}: exit status {done.returncode}\n{done.stdout[-3000:]}")
    return done.returncode == 0


def compile_code(page, folder):
    engine = ROOT / "src/engine/animationrealization.h"
    flags = subprocess.run(["pkg-config", "--cflags", "Qt5Widgets"], check=True, capture_output=True,
                           text=True).stdout.split()
    good = True
    for line, language, mark, text in blocks(page):
        if language != "cpp" or mark:
            continue
        # An effect is a member of the engine: its declaration goes where the page says.
        members = "".join(f"void {name}();\n" for name in
                          re.findall(r"^void animationRealization::(\w+)\(\)", text, re.M))
        header = engine.read_text().replace("void SwingEffect();", "void SwingEffect();\n" + members)
        assert not members or members in header
        (folder / "engine").mkdir(exist_ok=True)
        (folder / "engine" / engine.name).write_text(header)
        before = after = ""
        if members:
            before = '#include "engine/frame.h"\nnamespace Lw { namespace HNodeAnimationText {\n'
            after = "}}\n"
        (folder / "code.cpp").write_text(f'{before}#line {line + 1} "{page.name}"\n{text}{after}')
        done = subprocess.run(
            ["g++", "-std=c++11", "-fPIC", "-fsyntax-only", "-Wall", "-Wextra", "-Wconversion", "-Werror",
             f"-I{folder}", *(f"-I{ROOT / room}" for room in ("src", "platform/host", "platform/device")),
             *(flag.replace("-I", "-isystem", 1) for flag in flags), folder / "code.cpp"],
            capture_output=True, text=True)
        if done.returncode:
            print(f"{page}:{line}: this code does not compile\n{done.stderr[-3000:]}")
            good = False
    return good


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    pages = [pathlib.Path(name) for name in sys.argv[2:]] or [
        ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").glob("*.md"))]
    good, seen = True, 0
    for page in pages:
        seen += sum(language in ("sh", "cpp") and not mark for _, language, mark, _ in blocks(page))
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "code").mkdir()
            (pathlib.Path(folder) / "home").mkdir()
            good &= compile_code(page, pathlib.Path(folder) / "code")
            good &= run(page, build, pathlib.Path(folder) / "home")
    print(f"{seen} blocks of {len(pages)} pages")
    sys.exit(0 if good and seen else 1)


main()
