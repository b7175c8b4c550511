r"""The operations of FeatureControlFuncs (VyrLibraryFuncs/shell/FeatureControlFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Switches features of the web-browser controls in the host's process: some for the running process, through the
system's URL library; others permanently, by values in the user's registry under the name of the host's executable
file. A failure changes nothing and is not reported; earlier changes stay.

The values are written only where this machine's registry has the key `Software\Microsoft\Internet
Explorer\Main\FeatureControl`. Linux has no URL library: there the switches of the process have no effect.
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


def set_feature_security_band(enable: int) -> None:
    r"""SetFeatureSecurityBand

    Feature 9: the bar that reports blocked content.
    enable: non-zero switches it on, as in those below.
    """
    return call("vyr_feature_control_set_feature_security_band", NOTHING, (INT, enable))


def set_feature_weboc_popup_management(enable: int) -> None:
    r"""SetFeatureWebocPopupManagement

    Feature 5: pop-up windows are managed.
    """
    return call("vyr_feature_control_set_feature_weboc_popup_management", NOTHING, (INT, enable))


def set_feature_local_machine_lock_down(enable: int) -> None:
    r"""SetFeatureLocalMachineLockDown

    Feature 8: pages of this machine are locked down.
    """
    return call("vyr_feature_control_set_feature_local_machine_lock_down", NOTHING, (INT, enable))


def set_feature_restrict_file_download(enable: int) -> None:
    r"""SetFeatureRestrictFileDownload

    Feature 12: downloads that the user did not request are blocked.
    """
    return call("vyr_feature_control_set_feature_restrict_file_download", NOTHING, (INT, enable))


def set_feature_restrict_active_x_install(enable: int) -> None:
    r"""SetFeatureRestrictActiveXInstall

    Feature 10: installing ActiveX controls is blocked.
    """
    return call("vyr_feature_control_set_feature_restrict_active_x_install", NOTHING, (INT, enable))


def set_feature_tabbed_browsing(enable: int) -> None:
    r"""SetFeatureTabbedBrowsing

    Feature 19: pages open in tabs.
    """
    return call("vyr_feature_control_set_feature_tabbed_browsing", NOTHING, (INT, enable))


def set_feature_disable_navigation_sounds(enable: int) -> None:
    r"""SetFeatureDisableNavigationSounds

    Feature 21: navigation makes no sound.
    """
    return call("vyr_feature_control_set_feature_disable_navigation_sounds", NOTHING, (INT, enable))


def set_feature_feeds(enable: int) -> None:
    r"""SetFeatureFeeds

    Feature 26: feeds are shown.
    """
    return call("vyr_feature_control_set_feature_feeds", NOTHING, (INT, enable))


def set_feature_block_lmz_img(value: int) -> None:
    r"""SetFeatureBlockLMZImg

    Sets FEATURE_BLOCK_LMZ_IMG to `value`.
    """
    return call("vyr_feature_control_set_feature_block_lmz_img", NOTHING, (UINT32, value))


def set_feature_block_lmz_object(value: int) -> None:
    r"""SetFeatureBlockLMZObject

    Sets FEATURE_BLOCK_LMZ_OBJECT to `value`.
    """
    return call("vyr_feature_control_set_feature_block_lmz_object", NOTHING, (UINT32, value))


def set_feature_block_lmz_script(value: int) -> None:
    r"""SetFeatureBlockLMZScript

    Sets FEATURE_BLOCK_LMZ_SCRIPT to `value`.
    """
    return call("vyr_feature_control_set_feature_block_lmz_script", NOTHING, (UINT32, value))


def set_feature_browser_emulation(value: int) -> None:
    r"""SetFeatureBrowserEmulation

    Sets FEATURE_BROWSER_EMULATION to `value`, the number of a document mode.
    """
    return call("vyr_feature_control_set_feature_browser_emulation", NOTHING, (UINT32, value))
