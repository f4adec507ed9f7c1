"""What starts the replay, and how the replay names what lies on this machine's disk."""


class Native:
    command = []
    environment = {"QT_QPA_PLATFORM": "offscreen"}

    def name_of(self, path):
        return str(path)

    def evened(self, value):
        return value


class Wine:
    """A replay built for Windows: the disk is its drive Z, and it writes paths with backslashes."""
    command = ["wine"]
    environment = {}
    DRIVE = "Z:"

    def name_of(self, path):
        return self.DRIVE + str(path).replace("/", "\\")

    def evened(self, value):
        """A value of a result with the separators of this machine in all texts that hold a path."""
        if isinstance(value, str) and self.DRIVE in value:
            return value.replace("\\", "/")
        if isinstance(value, list):
            return [self.evened(each) for each in value]
        if isinstance(value, dict):
            return {key: self.evened(each) for key, each in value.items()}
        return value


RUNNERS = {"native": Native(), "wine": Wine()}
