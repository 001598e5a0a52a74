"""What make-image asks the tools of macOS to do, and what it leaves behind when one of them fails."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tarfile
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAKE_IMAGE = ROOT / "packaging" / "mac" / "make-image"
STAND_IN = pathlib.Path(__file__).with_name("stand_in.py")
TOOLS = ["codesign", "hdiutil", "sleep", "spctl", "uname", "xattr", "xcrun"]

SIGNED = ["--identity", "Developer ID Application: N (T)", "--notary-profile", "P"]

STAGED = "WORK/volume/Launcher.app"
SEEN = "WORK/check/Launcher.app"
VIEWER = "Contents/Resources/bin/vexlink"
SIGN = "codesign --force --sign Developer ID Application: N (T) --timestamp"

UNSIGNED_REQUESTS = [
    f"xattr -cr {STAGED}",
    f"codesign --force --sign - --timestamp=none --options runtime {STAGED}/{VIEWER}",
    f"codesign --force --sign - --timestamp=none --options runtime {STAGED}",
    "hdiutil create -ov -volname Vorx Launcher -srcfolder WORK/volume -fs HFS+ -format UDZO "
    "WORK/L.dmg",
    "hdiutil attach -readonly -nobrowse -mountpoint WORK/check WORK/L.dmg",
    f"codesign --verify --strict {SEEN}/{VIEWER}",
    f"codesign --verify --strict --deep {SEEN}",
    "hdiutil detach WORK/check",
]

SIGNED_REQUESTS = [
    f"xattr -cr {STAGED}",
    f"{SIGN} --options runtime {STAGED}/{VIEWER}",
    f"{SIGN} --options runtime {STAGED}",
    UNSIGNED_REQUESTS[3],
    f"{SIGN} WORK/L.dmg",
    "xcrun notarytool submit WORK/L.dmg --wait --output-format json --keychain-profile P",
    "xcrun stapler staple WORK/L.dmg",
    *UNSIGNED_REQUESTS[4:7],
    f"spctl --assess --type execute {SEEN}",
    "hdiutil detach WORK/check",
    "codesign --verify WORK/L.dmg",
    "xcrun stapler validate -q WORK/L.dmg",
    "spctl --assess --type open --context context:primary-signature WORK/L.dmg",
]

# The beginning of a request → what the script says when that request fails.
FAILURES = {
    "xattr": f"could not strip the extended attributes of {STAGED}",
    f"{SIGN} --options runtime {STAGED}/{VIEWER}": f"could not sign {STAGED}/{VIEWER}",
    f"{SIGN} --options runtime {STAGED}": f"could not sign {STAGED}",
    "hdiutil create": "could not make IMAGE",
    f"{SIGN} WORK/L.dmg": "could not sign WORK/L.dmg",
    "xcrun notarytool submit": "could not have IMAGE notarised: ",
    "xcrun stapler staple": "could not attach the notary's ticket to IMAGE",
    "hdiutil attach": "the image cannot be attached: IMAGE",
    f"codesign --verify --strict {SEEN}/{VIEWER}": "the viewer's signature in the image is not valid",
    "codesign --verify --strict --deep": "the application's signature is not valid",
    "spctl --assess --type execute": "the system would not let people start the application",
    "hdiutil detach": "could not detach IMAGE",
    "codesign --verify WORK/L.dmg": "the image's signature is not valid",
    "xcrun stapler validate": "the image does not carry the notary's ticket",
    "spctl --assess --type open": "the system would not let people open the image",
}


class SignedImage(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.made = self.folder / "made"
        self.made.mkdir()
        self.image = self.made / "L.dmg"
        self.make_application()
        self.make_tools()

    def make_application(self):
        self.application = self.folder / "Launcher.app"
        resources = self.application / "Contents" / "Resources"
        (resources / "bin").mkdir(parents=True)
        (resources / "en.lproj").mkdir()
        (resources / "en.lproj" / "MainMenu.nib").touch()
        (self.application / "Contents" / "Info.plist").touch()
        (resources / "bin" / "vexlink").touch(mode=0o755)

    def make_tools(self):
        self.tools = self.folder / "tools"
        self.tools.mkdir()
        for tool in TOOLS:
            (self.tools / tool).symlink_to(STAND_IN)
        self.record = self.folder / "record"

    def make_image(self, *options, failures=None, notary="Accepted"):
        """The exit status and the output. WORK stands for the script's own folder, IMAGE for the image."""
        self.record.write_text("")
        done = subprocess.run(
            [MAKE_IMAGE, *options, self.application, self.image], text=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            env={**os.environ, "PATH": f"{self.tools}:{os.environ['PATH']}",
                 "STAND_IN_RECORD": str(self.record), "STAND_IN_NOTARY": notary,
                 "STAND_IN_FAILURES": json.dumps(failures or {})})
        said = re.sub(rf"{self.made}/\.make-image\.\w+", "WORK", done.stdout)
        return done.returncode, said.replace(str(self.image), "IMAGE")

    def requests(self):
        """What the tools were asked to do, without the question which system this is."""
        return [line for line in self.record.read_text().splitlines() if line != "uname -s"]

    def check_made(self, requests, *options, **behaviour):
        self.assertEqual(self.make_image(*options, **behaviour), (0, "made IMAGE\n"))
        self.assertEqual(self.requests(), requests)
        self.assertEqual(os.listdir(self.made), ["L.dmg"])
        with tarfile.open(self.image) as volume:
            self.assertIn(f"./Launcher.app/{VIEWER}", volume.getnames())

    def check_refused(self, says, *options, **behaviour):
        """The script leaves nothing behind and keeps an earlier image."""
        self.image.unlink(missing_ok=True)
        for before in ([], ["L.dmg"]):
            for name in before:
                self.image.write_text("before")
            status, said = self.make_image(*options, **behaviour)
            self.assertNotEqual(status, 0)
            self.assertIn(f"make-image: {says}", said.splitlines())
            self.assertEqual(os.listdir(self.made), before)
            self.assertEqual([self.image.read_text() for name in before], ["before"] * len(before))

    def test_order_for_the_own_machine(self):
        self.check_made(UNSIGNED_REQUESTS)

    def test_order_for_other_people(self):
        self.check_made(SIGNED_REQUESTS, *SIGNED)

    def test_entitlements(self):
        for name in ("ours", "theirs"):
            (self.folder / name).touch()
        ours, theirs = self.folder / "ours", self.folder / "theirs"
        self.make_image("--entitlements", ours, "--viewer-entitlements", theirs)
        self.assertEqual(
            [request for request in self.requests() if "--entitlements" in request],
            [f"{UNSIGNED_REQUESTS[1].removesuffix(f'{STAGED}/{VIEWER}')}"
             f"--entitlements {theirs} {STAGED}/{VIEWER}",
             f"{UNSIGNED_REQUESTS[2].removesuffix(STAGED)}--entitlements {ours} {STAGED}"])

    def test_every_failure_is_told_and_leaves_nothing(self):
        for request, says in FAILURES.items():
            with self.subTest(request=request):
                self.check_refused(says, *SIGNED, failures={request: {"says": "no"}})

    def test_a_refused_image_is_detached(self):
        for request in ("codesign --verify --strict", "spctl --assess --type execute"):
            with self.subTest(request=request):
                self.make_image(*SIGNED, failures={request: {"says": "no"}})
                self.assertEqual(self.requests()[-1], "hdiutil detach WORK/check")

    def test_every_request_can_fail(self):
        """The list of failures covers every request."""
        for request in SIGNED_REQUESTS:
            with self.subTest(request=request):
                self.assertTrue(any(f"{request} ".startswith(f"{start} ") for start in FAILURES))

    def test_waits_while_an_image_is_busy(self):
        for verb in ("create", "attach", "detach"):
            with self.subTest(verb=verb):
                request = next(line for line in UNSIGNED_REQUESTS if f"hdiutil {verb}" in line)
                at = UNSIGNED_REQUESTS.index(request)
                self.check_made(
                    [*UNSIGNED_REQUESTS[:at], request, "sleep 2", request, "sleep 2",
                     *UNSIGNED_REQUESTS[at:]],
                    failures={f"hdiutil {verb}": {"times": 2, "says": "hdiutil: Resource busy"}})

    def test_does_not_wait_forever(self):
        self.check_refused("the image cannot be attached: IMAGE",
                           failures={"hdiutil attach": {"says": "hdiutil: Resource busy"}})
        self.assertEqual(self.requests().count("sleep 2"), 4)

    def test_a_refusal_of_the_notary_is_shown_with_its_reasons(self):
        self.check_refused("the notary did not accept IMAGE: Invalid", *SIGNED, notary="Invalid")
        self.assertIn("xcrun notarytool log 1-2-3 --keychain-profile P", self.requests())
        self.assertIn("the notary's reasons", self.make_image(*SIGNED, notary="Invalid")[1])
        self.assertNotIn("xcrun stapler staple WORK/L.dmg", self.requests())

    def test_the_reason_of_a_tool_is_shown(self):
        for request in ("hdiutil create", "hdiutil attach", "hdiutil detach", "codesign --force"):
            with self.subTest(request=request):
                said = self.make_image(failures={request: {"says": "the tool's reason"}})[1]
                self.assertIn("the tool's reason", said.splitlines())

    def test_an_image_without_the_application_is_refused(self):
        shutil.rmtree(self.application / "Contents" / "Resources" / "bin")
        self.check_refused("the application holds no viewer; give one with --viewer")


if __name__ == "__main__":
    unittest.main()
