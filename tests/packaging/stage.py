"""Installs a build into an empty folder:  stage.py CMAKE BUILD STAGE"""

import os
import shutil
import subprocess
import sys

cmake, build, stage = sys.argv[1:]
shutil.rmtree(stage, ignore_errors=True)
subprocess.run([cmake, "--install", build, "--prefix", "/usr"], check=True, env=os.environ | {"DESTDIR": stage},
               timeout=100)
