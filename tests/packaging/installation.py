"""What the tests of an installation share. A test is called as  NAME_test.py SOURCES STAGE/usr"""

import os
import subprocess
import sys
from pathlib import Path

INSTALLED = Path(sys.argv.pop())
SOURCES = Path(sys.argv.pop())
SHARE = INSTALLED / "share"


def run(*command, **options):
    """Output and errors as one text; the exit status is `.returncode`."""
    options = {"stdout": subprocess.PIPE, "stderr": subprocess.STDOUT, "text": True, "timeout": 60} | options
    return subprocess.run([str(word) for word in command], **options)


def output(*command, **options):
    done = run(*command, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command} ended with {done.returncode}: {done.stdout}")
    return done.stdout


def program(name, *arguments):
    return output(INSTALLED / "bin" / name, *arguments)


def environment(**changes):
    return os.environ | {name: str(value) for name, value in changes.items()}
