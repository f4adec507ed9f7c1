"""The scripts that the replay refuses: what comes before the line that can't be played, that line, and
what the replay says of it. No line behind it is played."""

from dataclasses import dataclass

from disk import Folder
from expectation import compared
from replay import play

EXIT_CODE = 2
BEHIND = '{"pointer": true}'
NOT_STARTED = []
STARTED = ['{"start": true}']

TABLE = [
    (NOT_STARTED, '{"click": "cmdOpen"}', "the session hasn't been started"),
    (STARTED, '{"answer": "perhaps"}', 'the value of "answer" can\'t be understood'),
    (STARTED, '{"click": "chkFlag1", "force": true}', 'nobody can do that to chkFlag1'),
    (STARTED, '{"click": "lblGewicht"}', 'nobody can do that to lblGewicht'),
    (STARTED, '{}', 'a line is an object'),
    (STARTED, '{"answer": {"filter": 1}}', 'the value of "answer" can\'t be understood'),
    (STARTED, '{"tab": "SSTab1", "to": 1.5}', 'the value of "to" can\'t be understood'),
    (STARTED, '{"lang": 221}', 'there is no language entry 221'),
    (STARTED, '{"scroll": "HScroll1", "value": "1"}', 'the value of "value" can\'t be understood'),
    (STARTED, '{"mark": "frmExport.lst1", "rows": [0], "force": true}', 'there is no row 0'),
    (STARTED, '{"type": "txtGewicht"}', '"text" is missing'),
    (STARTED, '{"erase": "txtGewicht", "count": -1}', 'the value of "count" can\'t be understood'),
    (STARTED, '{"pick": "cmbSprache", "row": -1}', 'there is no row -1'),
    (STARTED, 'not json',
     "[json.exception.parse_error.101] parse error at line 1, column 2: syntax error"
     " while parsing value - invalid literal; last read: 'no'"),
    (STARTED, '[1]', 'a line is an object'),
    (STARTED, '{"click": "frmMain.cmdOpen"}', 'there is no control frmMain.cmdOpen'),
    (STARTED, '{"pick": "cmbSprache", "row": 0, "text": "Eins"}', '"pick" takes a row or a text'),
    (STARTED, '{"pick": "cmbSprache"}', '"pick" takes a row or a text'),
    (STARTED, '{"pick": "cmbSprache", "row": 2}', 'there is no row 2'),
    (STARTED, '{"row": "frmExport.lst1", "to": 0, "force": true}', 'there is no row 0'),
    (STARTED, '{"setting": ["Settings", "Language"]}', 'the value of "setting" can\'t be understood'),
    (STARTED, '{"start": false}', 'the value of "start" can\'t be understood'),
    (STARTED, '{"start": true}', 'the session has been started already'),
    (STARTED, '{"tab": "SSTab1", "to": 8, "force": true}', 'there is no row 8'),
    (STARTED, '{"pick": "cmbSprache", "text": "eins"}', 'there is no entry "eins"'),
    (STARTED, '{"tick": "chkFlag1", "state": 2, "force": true}', 'no click gives state 2'),
    (STARTED, '{"click": "cmdNothing"}', 'there is no control cmdNothing'),
    (STARTED, '{"get": "lblNothing"}', 'there is no control lblNothing'),
    (STARTED, '{"click": "cmdOpen", "slowly": true}', "the line has a key that can't be understood"),
    (STARTED, '{"table": "Cats"}', 'there is no table Cats'),
    (STARTED, '{"dance": "cmdOpen"}', 'nothing that can be played'),
    (STARTED, '{"close": "frmNothing"}', 'there is no window frmNothing'),
    (STARTED, '{"scroll": "HScroll1", "value": 2147483648}', 'the value of "value" can\'t be understood'),
    (STARTED + ['{"answer": "yes"}'], '{"click": "cmdOpen"}', '"yes" is no answer to "E013"'),
    (STARTED + ['{"answer": {"file": "x"}}'], '{"click": "cmdUndo", "force": true}',
     '{"file":"x"} is no answer to "E098"'),
]


@dataclass(frozen=True)
class Refused:
    title: str
    lines: tuple
    reason: str

    def differences(self, command, runner, _):
        """Plays it; what came out otherwise than expected, as lines of a report."""
        script = "".join(line + "\n" for line in [*self.lines, BEHIND])
        with Folder([], runner) as folder:
            before = folder.files()
            outcome = play([*command, "--app", folder.name("app")], script, folder)
            faults = [*self.differences_of(outcome), *["files differ"] * (folder.files() != before)]
        return [*self.lines, *faults] if faults else []

    def differences_of(self, outcome):
        expected = f"line {len(self.lines)}, {self.lines[-1]}: {self.reason}"
        said = outcome.complaints.splitlines()[-1:]  # behind what the toolkit of the windows may say
        yield from compared([expected], said, "message")
        yield from compared([], [str(line) for line in outcome.lines], "result")
        if outcome.exit_code != EXIT_CODE:
            yield f"exit code {outcome.exit_code}, not {EXIT_CODE}"


REFUSED = [Refused(f"refused/{row}", (*before, line), reason)
           for row, (before, line, reason) in enumerate(TABLE, 1)]
