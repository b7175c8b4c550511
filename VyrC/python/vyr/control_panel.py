r"""The operations of ControlPanelFuncs (VyrLibraryFuncs/shell/ControlPanelFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Opens pages of the Control Panel without waiting until they are closed. Linux has no Control Panel: there both
return 0.
"""
import dataclasses
import datetime
import uuid
from typing import Callable, Optional, Sequence, Tuple
from typing import List as ListType

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)
NO_ID = uuid.UUID(int=0)


def exec_date_and_time(owner: int) -> int:
    r"""ExecDateAndTime

    Opens the page of date and time.
    owner: the window that messages of the system belong to, or a null pointer.
    Returns: 1 when it was started, else 0.
    """
    return call("vyr_control_panel_exec_date_and_time", INT, (HANDLE, owner))


def exec_programs_and_features(owner: int) -> int:
    r"""ExecProgramsAndFeatures

    Opens the list of installed programs, with the same argument and result.
    """
    return call("vyr_control_panel_exec_programs_and_features", INT, (HANDLE, owner))
