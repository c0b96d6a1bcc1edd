"""The demo home folders: what lies in them, and how it is put on disk."""
