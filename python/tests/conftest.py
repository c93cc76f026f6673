import os
import sys

import pytest

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

import orbisk  # noqa: E402


@pytest.fixture(scope="session")
def switch():
    return orbisk.Switch()


@pytest.fixture
def sw(switch):
    """The switch of device 0 on a model that forgets everything first."""
    switch.model.orbisk_model_reset()
    return switch


def widths_value(width, seed):
    """A value that fills a field of this width with a pattern of its own."""
    v = 0
    for i in range((width + 7) // 8):
        v = (v << 8) | ((0x5A + 0x11 * (seed + i)) & 0xFF)
    return v & ((1 << width) - 1)
