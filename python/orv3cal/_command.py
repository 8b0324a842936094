"""Command lines made of Python's values, and what comes of them."""

from __future__ import annotations

import json
import math
import numbers
import os
import re
import warnings
from decimal import Decimal
from pathlib import Path
from typing import Any, Iterable, Mapping, Optional, Sequence, Union

from . import _orv3cal

Number = Union[float, str]
CText = tuple[str, str]  # in Chinese and in English
_language: Optional[str] = None

if hasattr(os, "register_at_fork"):  # what a thread has begun would never end in the child
    os.register_at_fork(
        before=_orv3cal.hold, after_in_parent=_orv3cal.release, after_in_child=_orv3cal.release
    )


class Error(ValueError):
    """What could not be done: one sentence that names what was wrong and what would be right.

    ``status`` is the command's exit status: 2 for bad input, 3 for trouble with a file.
    """

    def __init__(self, text: str, status: int = 2) -> None:
        super().__init__(text)
        self.status = status


def set_language(language: Optional[str]) -> None:
    """Answers in "zh" or "en" from now on; None leaves it to ORV3CAL_LANG and the locale."""
    global _language
    if language is not None and not (isinstance(language, str) and language in ("zh", "en")):
        raise Error(
            say("{0!r} 不是语言；应为 zh、en 或 None", '{0!r} is no language; right would be "zh", "en" or None', language)
        )
    _language = language


def say(chinese: str, english: str, *parts: Any) -> str:
    """The half of a sentence in the language of answers, its parts filled in."""
    return _orv3cal.say(option("--lang", _language), chinese, english).format(*parts)


def find_catalogue() -> None:
    """Takes the catalogue in share/orv3cal of the nearest folder above this file that has one."""
    for folder in Path(__file__).resolve().parents:
        data = folder / "share" / "orv3cal"
        if (data / "KvbSystemJmDataBase.KDB").is_file():
            return _orv3cal.set_catalogue(str(data))


def text_of(value: Any) -> str:
    """A value as an argument; a number with all its digits."""
    if isinstance(value, bool) or isinstance(value, str):
        return str(value)
    if isinstance(value, numbers.Integral):
        return str(int(value))
    if isinstance(value, numbers.Real):
        return repr(float(value))
    return str(value)


def option(name: str, value: Any) -> list[str]:
    """An option with its value; nothing for None, the name alone for True."""
    if value is None or value is False:
        return []
    return [name] if value is True else [f"{name}={text_of(value)}"]


def stores(store: Any, data: Any) -> list[str]:
    return option("--store", _path("store", store)) + option("--data", _path("data", data))


def _path(name: str, value: Any) -> Optional[str]:
    path = value.__fspath__() if isinstance(value, os.PathLike) else value
    if path is None or isinstance(path, str):
        return path
    raise Error(
        say("{0}={1!r} 不是路径；应为 str 或 pathlib.Path", "{0}={1!r} is no path; right would be a str or pathlib.Path", name, value)
    )


def listed(name: str, values: Any, right: CText) -> list[Any]:
    """The values of what has them one after another; a text or a mapping is no list of values."""
    try:
        if not isinstance(values, (str, bytes, Mapping)):
            return list(values)
    except TypeError:
        pass
    raise Error(
        say("{0}：{1!r} 不是列表；应为{2}", "{0}: {1!r} is no list; right would be {2}", name, values, say(*right))
    )


def joined(name: str, texts: Any) -> str:
    """Texts as the command takes several of them."""
    if isinstance(texts, str):
        return texts
    each = listed(name, texts, ("文字的列表", "a list of texts"))
    if not each:
        raise Error(say("{0}：列表是空的；应至少有一项，或为 None", "{0}: is an empty list; right would be one text at least, or None", name))
    return ",".join(map(text_of, each))


def line(command: Sequence[str], options: Iterable[str], places: Iterable[Any]) -> list[str]:
    """A command line. What stands at a place is never taken for an option."""
    language = option("--lang", _language)
    words = [*command, *options, *language, "--", *(text_of(place) for place in places)]
    for word in words:
        if _has_half_a_pair(word):
            raise Error(say("有一个参数不是 UTF-8 文字", "an argument is not UTF-8 text"))
        if "\0" in word:  # a name of a file would end there, and be that of another
            raise Error(
                say(
                    "{0!r} 中有 NUL 字符；应为不含它的文字",
                    "{0!r} has a NUL character in it; right would be a text without one",
                    word.removeprefix("--"),
                )
            )
    return words


def _has_half_a_pair(text: str) -> bool:
    return any("\ud800" <= letter <= "\udfff" for letter in text)


def sentence(told: str) -> str:
    """The command's own, without its name and that of standard input in front; its options that
    name a store as they are given here."""
    text = told.strip().split("\n")[-1]
    text = re.sub(r"--(store|data)(?![a-z-])( FILE| DIR)?", r"\1=", text)
    return text.removeprefix("orv3cal: ").removeprefix("-: ")


def answer(arguments: list[str], case: Any = None) -> Any:
    """What a command answers as JSON; ``case`` is its file "-". Raises Error."""
    status, out, told = _orv3cal.run(arguments, "" if case is None else json_of(case))
    if status > 1 or not out:
        raise Error(sentence(told), status)
    if told:
        warnings.warn(sentence(told), stacklevel=3)
    return json.loads(out)


def json_of(case: Any) -> str:
    """A case as JSON, numpy's numbers and arrays among its values."""
    text = case if isinstance(case, str) else json.dumps(_plain(case, ""), ensure_ascii=False)
    if _has_half_a_pair(text):
        raise Error(say("算例不是 UTF-8 文字", "the case is not UTF-8 text"))
    return text


def plain(value: Any) -> Any:
    """A value of numpy, pandas or decimal as Python's own number, text, list or None, if it is one.

    A time is none, though numpy would tell it as a number of nanoseconds.
    """
    if getattr(getattr(value, "dtype", None), "kind", None) in ("m", "M"):
        return value
    if hasattr(value, "tolist"):
        value = value.tolist()
    if isinstance(value, bool):
        return value
    try:
        if isinstance(value, numbers.Integral):
            return int(value)
        if isinstance(value, (numbers.Real, Decimal)):
            return float(value)
    except (OverflowError, ValueError):  # beyond all doubles, or a signalling NaN
        pass
    return value


def _plain(value: Any, place: str) -> Any:
    """A value as JSON knows it; ``place`` is the key that it stands at, as in "bolts[2].x"."""
    value = plain(value)
    if isinstance(value, Mapping):
        return {str(key): _plain(each, f"{place}.{key}" if place else str(key)) for key, each in value.items()}
    if isinstance(value, (list, tuple)):
        return [_plain(each, f"{place}[{i}]") for i, each in enumerate(value)]
    if value is None or isinstance(value, (bool, str, int)):
        return value
    if isinstance(value, float) and math.isfinite(value):  # whole ones as a frame's are, for names
        return int(value) if value.is_integer() and abs(value) < 2**63 else value
    raise Error(
        say(
            "{0}：{1!r} 不是 JSON 的值；应为有限的数、文字、列表或字典",
            "{0}: {1!r} is no value of JSON; right would be a finite number, text, list or dict",
            place or "case",
            value,
        )
    )
