"""The operations of ApplicationFuncs, which VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def get_local_data_application_version() -> str:
    """GetLocalDataApplicationVersion"""
    return call("vyr_application_get_local_data_application_version", TEXT)


def is_alpha_version() -> int:
    """IsAlphaVersion"""
    return call("vyr_application_is_alpha_version", INT)


def is_beta_version() -> int:
    """IsBetaVersion"""
    return call("vyr_application_is_beta_version", INT)


def is_release_candidate_version() -> int:
    """IsReleaseCandidateVersion"""
    return call("vyr_application_is_release_candidate_version", INT)


def is_release_to_manufacturing_version() -> int:
    """IsReleaseToManufacturingVersion"""
    return call("vyr_application_is_release_to_manufacturing_version", INT)


def is_release_version() -> int:
    """IsReleaseVersion"""
    return call("vyr_application_is_release_version", INT)


def is_product_release_version() -> int:
    """IsProductReleaseVersion"""
    return call("vyr_application_is_product_release_version", INT)


def get_online_support_url() -> str:
    """GetOnlineSupportUrl"""
    return call("vyr_application_get_online_support_url", TEXT)


def get_send_feedback_url() -> str:
    """GetSendFeedbackUrl"""
    return call("vyr_application_get_send_feedback_url", TEXT)


def get_send_questionnaire_url() -> str:
    """GetSendQuestionnaireUrl"""
    return call("vyr_application_get_send_questionnaire_url", TEXT)
