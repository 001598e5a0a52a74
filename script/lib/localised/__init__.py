"""The program's texts in its languages. The build reads them; the tests compare them."""
