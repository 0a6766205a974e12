            try
            tell application "Finder"
            set pathAppSupp to path to application support
            return 1
            end tell
            on error errMsg
            return 0
            end try