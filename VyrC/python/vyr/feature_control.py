"""The operations of FeatureControlFuncs, which VyrLibraryFuncs/shell/FeatureControlFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def set_feature_security_band(enable: int) -> None:
    """SetFeatureSecurityBand"""
    return call("vyr_feature_control_set_feature_security_band", NOTHING, (INT, enable))


def set_feature_weboc_popup_management(enable: int) -> None:
    """SetFeatureWebocPopupManagement"""
    return call("vyr_feature_control_set_feature_weboc_popup_management", NOTHING, (INT, enable))


def set_feature_local_machine_lock_down(enable: int) -> None:
    """SetFeatureLocalMachineLockDown"""
    return call("vyr_feature_control_set_feature_local_machine_lock_down", NOTHING, (INT, enable))


def set_feature_restrict_file_download(enable: int) -> None:
    """SetFeatureRestrictFileDownload"""
    return call("vyr_feature_control_set_feature_restrict_file_download", NOTHING, (INT, enable))


def set_feature_restrict_active_x_install(enable: int) -> None:
    """SetFeatureRestrictActiveXInstall"""
    return call("vyr_feature_control_set_feature_restrict_active_x_install", NOTHING, (INT, enable))


def set_feature_tabbed_browsing(enable: int) -> None:
    """SetFeatureTabbedBrowsing"""
    return call("vyr_feature_control_set_feature_tabbed_browsing", NOTHING, (INT, enable))


def set_feature_disable_navigation_sounds(enable: int) -> None:
    """SetFeatureDisableNavigationSounds"""
    return call("vyr_feature_control_set_feature_disable_navigation_sounds", NOTHING, (INT, enable))


def set_feature_feeds(enable: int) -> None:
    """SetFeatureFeeds"""
    return call("vyr_feature_control_set_feature_feeds", NOTHING, (INT, enable))


def set_feature_block_lmz_img(value: int) -> None:
    """SetFeatureBlockLMZImg"""
    return call("vyr_feature_control_set_feature_block_lmz_img", NOTHING, (UINT32, value))


def set_feature_block_lmz_object(value: int) -> None:
    """SetFeatureBlockLMZObject"""
    return call("vyr_feature_control_set_feature_block_lmz_object", NOTHING, (UINT32, value))


def set_feature_block_lmz_script(value: int) -> None:
    """SetFeatureBlockLMZScript"""
    return call("vyr_feature_control_set_feature_block_lmz_script", NOTHING, (UINT32, value))


def set_feature_browser_emulation(value: int) -> None:
    """SetFeatureBrowserEmulation"""
    return call("vyr_feature_control_set_feature_browser_emulation", NOTHING, (UINT32, value))
