r"""The operations of ApplicationFuncs (VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Reads the application information file of a host (PathUtils::GetLocalDataApplicationFilePath): the release stage of
the installed build, and the addresses of three pages.

    [Application]
    Version=RC1
    [Online Support]
    Url=https://example.org/support
    [Send Feedback]
    Url=https://example.org/feedback
    [Send Questionnaire]
    Url=https://example.org/questions

It is a private-profile file (VyrPlatform::PrivateProfile), read in each call. A missing file or key gives an empty
text; a value of more than 259 code units is truncated.
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


def get_local_data_application_version() -> str:
    r"""GetLocalDataApplicationVersion

    The release stage, unchanged.
    """
    return call("vyr_application_get_local_data_application_version", TEXT)


def is_alpha_version() -> int:
    r"""IsAlphaVersion

    1 when the stage begins with "Alpha" in any case, also "Alphabet", else 0.
    """
    return call("vyr_application_is_alpha_version", INT)


def is_beta_version() -> int:
    r"""IsBetaVersion

    1 when the stage begins with "Beta" in any case, else 0.
    """
    return call("vyr_application_is_beta_version", INT)


def is_release_candidate_version() -> int:
    r"""IsReleaseCandidateVersion

    1 when the stage begins with "RC" in any case, else 0.
    """
    return call("vyr_application_is_release_candidate_version", INT)


def is_release_to_manufacturing_version() -> int:
    r"""IsReleaseToManufacturingVersion

    1 when the stage is "RTM" in any case, else 0.
    """
    return call("vyr_application_is_release_to_manufacturing_version", INT)


def is_release_version() -> int:
    r"""IsReleaseVersion

    1 when the stage is "Release" in any case, else 0. "Release 2" is not.
    """
    return call("vyr_application_is_release_version", INT)


def is_product_release_version() -> int:
    r"""IsProductReleaseVersion

    1 when the stage is "RTM" or "Release" in any case, else 0.
    """
    return call("vyr_application_is_product_release_version", INT)


def get_online_support_url() -> str:
    r"""GetOnlineSupportUrl

    The address of the online support page.
    """
    return call("vyr_application_get_online_support_url", TEXT)


def get_send_feedback_url() -> str:
    r"""GetSendFeedbackUrl

    The address of the feedback form.
    """
    return call("vyr_application_get_send_feedback_url", TEXT)


def get_send_questionnaire_url() -> str:
    r"""GetSendQuestionnaireUrl

    The address of the questionnaire.
    """
    return call("vyr_application_get_send_questionnaire_url", TEXT)
