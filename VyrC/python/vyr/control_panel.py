"""The operations of ControlPanelFuncs, which VyrLibraryFuncs/shell/ControlPanelFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def exec_date_and_time(owner: int) -> int:
    """ExecDateAndTime"""
    return call("vyr_control_panel_exec_date_and_time", INT, (HANDLE, owner))


def exec_programs_and_features(owner: int) -> int:
    """ExecProgramsAndFeatures"""
    return call("vyr_control_panel_exec_programs_and_features", INT, (HANDLE, owner))
