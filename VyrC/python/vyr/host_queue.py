r"""The operations of HostQueue (VyrC/HostQueue.h); written by VyrC/generate from VyrC/interface.txt.

Keeps a host's interface responsive: long operations handle pending events between their steps.
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


def set_drain(drain: Optional[Callable[[], bool]]) -> None:
    r"""SetDrain

    Makes each such step on the calling thread call `drain`, which handles at most one pending event without
    waiting, and answers whether that event asks for a stop. On Windows it takes the place of handling one message
    of the thread. Without a function that ends.
    """
    return call("vyr_host_queue_set_drain", NOTHING, (DRAIN, drain))
